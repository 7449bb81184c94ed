#include "radio/values.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>
#include <utility>

#include "air/characters.h"
#include "config/conversions.h"
#include "config/programme_types.h"
#include "config/windows_1252.h"
#include "config/words.h"
#include "station/country_table.h"
#include "station/language_codes.h"

namespace corvalis::radio {

namespace {

void Add(std::string& text, const std::string& word) { text += (text.empty() ? "" : ", ") + word; }

std::string Hex(std::uint32_t value, int digits) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 4) {
    *digit = "0123456789ABCDEF"[value & 0xF];
  }
  return text;
}

}  // namespace

std::string InWords(std::string_view english) { return Utf8From1252(Word(english)); }

std::string InWords(std::string_view english, std::initializer_list<std::string> values) {
  std::string text = InWords(english);
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at)) {
    const std::size_t place =
        at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) - '1' : values.size();
    if (place >= values.size()) {
      ++at;
      continue;
    }
    const std::string& value = values.begin()[place];
    text.replace(at, 2, value);
    at += value.size();
  }
  return text;
}

std::string ClockText(const air::ClockTime& clock) {
  const auto day = std::chrono::floor<std::chrono::days>(clock.Local());
  const std::chrono::year_month_day date{day};
  return Digits(static_cast<int>(static_cast<unsigned>(date.day())), 2) + "." +
         Digits(static_cast<int>(static_cast<unsigned>(date.month())), 2) + "." +
         Digits(static_cast<int>(date.year()), 4) + " " + TimeText(clock.Local() - day) + " (" +
         SignedHours(clock.offset_half_hours) + ")";
}

std::string OneDecimal(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", value);
  return text.data();
}

Value Plain(std::string shown) {
  Value value{.key = shown, .shown = {}};
  value.shown = std::move(shown);
  return value;
}

Value TextValue(std::string bytes) {
  const auto* const first = reinterpret_cast<const std::uint8_t*>(bytes.data());
  std::string shown = air::RadioText({first, bytes.size()});
  return {.key = std::move(bytes), .shown = std::move(shown)};
}

Value OnOffValue(bool on) {
  return {.key = on ? "1" : "0", .shown = on ? InWords("on") : InWords("off")};
}

Value MusicValue(bool music) {
  return {.key = music ? "1" : "0", .shown = music ? InWords("music") : InWords("speech")};
}

Value HexValue(std::uint32_t value, int digits) { return Plain(Hex(value, digits)); }

Value PtyValue(int pty) {
  return Plain(std::to_string(pty) + " " + ProgramTypeNames().at(static_cast<std::size_t>(pty)));
}

Value LanguageValue(int code) {
  const std::string_view name = code < kLanguageCodes ? LanguageOfCode(code) : "";
  return Plain(Hex(static_cast<std::uint32_t>(code), 2) + (name.empty() ? "" : " ") +
               std::string(name));
}

Value ItemNumberValue(const air::ItemNumber& number) {
  const std::string code = Hex(air::WordOf(number), 4);
  if (number.day == 0) return Plain(code + " (" + InWords("none") + ")");
  return Plain(code + " (" + std::to_string(number.day) + ", " + Digits(number.hour, 2) + ":" +
               Digits(number.minute, 2) + ")");
}

Value FrequencyValue(const air::HeardFrequency& frequency) {
  const int khz = frequency.Kilohertz();
  if (frequency.prefix == air::kLfOrMfNext) return Plain(std::to_string(khz) + " kHz");
  std::string text = std::to_string(khz / 1000) + "." + Digits(khz % 1000, 3);
  while (text.ends_with("00") || (text.ends_with('0') && text[text.size() - 2] != '.')) {
    text.pop_back();
  }
  return Plain(text);
}

Value PairValue(const air::FrequencyPair& pair) {
  return Plain(FrequencyValue(pair.own).shown + " - " + FrequencyValue(pair.other).shown);
}

Value LinkageValue(const air::Linkage& linkage) {
  Value value = HexValue(static_cast<std::uint32_t>(linkage.number), 3);
  if (linkage.extended) Add(value.shown, InWords("extended generic"));
  if (linkage.international) Add(value.shown, InWords("international"));
  return Plain(value.shown);
}

Value OffsetValue(int half_hours) { return Plain(SignedHours(half_hours)); }

Value SubchannelValue(std::uint32_t bits) {
  constexpr int kCommandBits = 20;
  return Plain(Hex(bits >> kCommandBits, 3) + " " + Hex(bits, kCommandBits / 4));
}

Value ScopesValue(const air::TrafficTable& table) {
  std::string text;
  std::string key;
  for (const auto& [on, word] : {std::pair(table.international, LaterWord("international")),
                                 {table.national, LaterWord("national")},
                                 {table.regional, LaterWord("regional")},
                                 {table.urban, LaterWord("urban")}}) {
    key += on ? '1' : '0';
    if (on) Add(text, InWords(word));
  }
  return {.key = key, .shown = text.empty() ? InWords("none") : text};
}

Value MessageValue(const air::Group8A& message) {
  std::string text = InWords("event %1, location %2, extent %3, direction %4, duration %5",
                             {std::to_string(message.event), std::to_string(message.location),
                              std::to_string(message.extent), message.direction ? "-" : "+",
                              std::to_string(message.duration)});
  if (message.diversion) Add(text, InWords("diversion"));
  return Plain(text);
}

std::string CountryOf(int pi, int ecc) {
  constexpr int kCountryBits = 12;
  const auto countries = Countries();
  const auto found = std::ranges::find_if(countries, [&](const CountryRecord& record) {
    return record.country == pi >> kCountryBits && record.ecc == ecc;
  });
  return found == countries.end() ? std::string() : std::string(found->name);
}

}  // namespace corvalis::radio
