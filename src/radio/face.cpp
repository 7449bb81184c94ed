#include "radio/face.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <span>

#include "air/characters.h"
#include "config/conversions.h"
#include "radio/face_data.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

using air::Hearing;

constexpr std::size_t kLine = 32;  // characters of a radio text side by side
constexpr air::AirSeconds kDrift = 2;

std::string InWords(Hearing hearing) {
  switch (hearing) {
    case Hearing::kNot:
      return radio::InWords("not heard yet");
    case Hearing::kBeing:
      return radio::InWords("being heard");
    case Hearing::kHeard:
      break;
  }
  return radio::InWords("heard whole");
}

std::string TimeOfDay(DateTime when) {
  const std::chrono::hh_mm_ss time(when - std::chrono::floor<std::chrono::days>(when));
  return Digits(static_cast<int>(time.hours().count()), 2) + ":" +
         Digits(static_cast<int>(time.minutes().count()), 2) + ":" +
         Digits(static_cast<int>(time.seconds().count()), 2);
}

template <class T, class Make>
Face::Shown Fact(const std::string& name, const air::Item<T>& item, Make make) {
  return {.name = name,
          .text = item.IsHeard() ? make(item.value) : InWords(item.hearing),
          .hearing = item.hearing};
}

template <class T, class Make>
Face::Lamp LampOf(const std::string& name, const air::Item<T>& item, Make make) {
  return {.name = name,
          .words = item.IsHeard() ? make(item.value).shown : InWords(item.hearing),
          .lit = item.IsHeard() && item.value,
          .announces = false};
}

// Of what builds up, with a dot for each character that has not come.
std::string Building(std::span<const std::uint8_t> bytes, std::uint32_t pairs) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    text += (pairs >> (i / 2) & 1U) != 0 ? air::RadioText(bytes.subspan(i, 1)) : "\u00B7";
  }
  return text;
}

Face::Shown NameOf(const air::ServiceName& ps) {
  bool agrees = ps.now.IsHeard();
  for (std::size_t i = 0; i < ps.building.size() && agrees; ++i) {
    const bool came = (ps.segments >> (i / 2) & 1U) != 0;
    agrees = !came || ps.building[i] == ps.now.value[i];
  }
  if (agrees) {
    return {.name = "PS", .text = air::RadioText(ps.now.value), .hearing = Hearing::kHeard};
  }
  return {.name = "PS",
          .text = Building(ps.building, ps.segments),
          .hearing = ps.segments == 0 && !ps.now.IsHeard() ? Hearing::kNot : Hearing::kBeing};
}

// The end of the line that begins at `begin`: where the text asks for a new one, or it is full. A
// word is not torn if what is left goes into the next line.
std::size_t EndOfLine(std::span<const std::uint8_t> bytes, std::size_t begin) {
  const std::size_t full = std::min(bytes.size(), begin + kLine);
  for (std::size_t at = begin; at < full; ++at) {
    if (bytes[at] == air::kLineBreak || bytes[at] == air::kEndOfHeadline) return at + 1;
  }
  if (full == bytes.size()) return full;
  std::size_t end = bytes.size();
  while (end > full && bytes[end - 1] == ' ') --end;
  for (std::size_t at = full; at > begin && end - at <= kLine; --at) {
    if (bytes[at - 1] == ' ') return at;
  }
  return full;
}

void ShowText(const air::TextOfStation& rt, Face& face) {
  const bool heard = rt.now.IsHeard();
  const std::span<const std::uint8_t> bytes =
      heard ? std::span<const std::uint8_t>(rt.now.value) : rt.building;
  const std::uint32_t pairs = heard ? ~0U : rt.pairs;
  face.text = {.name = "RT", .text = {}, .hearing = rt.now.hearing};
  const std::string flag = rt.flag ? "B" : "A";
  if (rt.now.hearing == Hearing::kNot && rt.pairs == 0) {
    face.text_state = InWords(Hearing::kNot);
  } else {
    for (std::size_t begin = 0; begin < bytes.size();) {
      const std::size_t end = EndOfLine(bytes, begin);
      const std::string line = Building(bytes.subspan(begin, end - begin), pairs >> (begin / 2));
      face.text_lines.push_back(line);
      face.text.text += line;
      begin = end;
    }
    face.text_state = heard ? radio::InWords("heard, text %1", {flag})
                            : radio::InWords("being heard, text %1: %2 of %3 characters",
                                             {flag, std::to_string(2 * std::popcount(rt.pairs)),
                                              std::to_string(rt.building.size())});
  }
  face.text_lines.resize(std::max<std::size_t>(2, face.text_lines.size()));
}

void ShowTexts(const air::TextOfStation& rt, const AirTime& time, Face& face) {
  for (const air::WholeText& text : rt.remembered) {
    std::string shown = air::RadioText(text.bytes);
    shown.erase(shown.find_last_not_of(' ') + 1);
    face.texts.push_back({.time = TimeOfDay(time.At(text.since)), .text = std::move(shown)});
  }
}

// How far the station's clock is from this machine's, which knows whole seconds.
std::string Apart(std::chrono::seconds apart) {
  using std::chrono::seconds;
  if (apart >= seconds(-1) && apart <= seconds(1)) {
    return radio::InWords("the same as this machine's clock");
  }
  const auto length = std::chrono::abs(apart);
  const std::chrono::hh_mm_ss parts(length);
  const std::string words = length < std::chrono::minutes(1)
                                ? std::to_string(length.count()) + " s"
                                : std::to_string(parts.hours().count()) + ":" +
                                      Digits(static_cast<int>(parts.minutes().count()), 2) + ":" +
                                      Digits(static_cast<int>(parts.seconds().count()), 2);
  return apart > seconds(0) ? radio::InWords("%1 ahead of this machine's clock", {words})
                            : radio::InWords("%1 behind this machine's clock", {words});
}

void ShowClock(const air::Item<air::ClockTime>& clock, const AirTime& time, Face& face) {
  Face::Shown shown = Fact("CT", clock, ClockText);
  Face::Shown apart{.name = radio::InWords("Clock"), .text = {}, .hearing = clock.hearing};
  if (clock.IsHeard()) {
    const auto since = std::chrono::floor<std::chrono::seconds>(
        std::chrono::duration<double>(time.Air() - clock.last));
    const DateTime local = clock.value.Local() + since;
    air::ClockTime running = clock.value;
    running.utc += std::chrono::floor<std::chrono::minutes>(since);
    shown.text = ClockText(running);
    apart.text = Apart(local - time.Local());
  } else {
    apart.text = InWords(clock.hearing);
  }
  face.facts.push_back(std::move(shown));
  face.facts.push_back(std::move(apart));
}

void ShowFacts(const air::Reception& heard, const AirTime& time, Face& face) {
  const auto number = [](int digits) {
    return
        [digits](int value) { return HexValue(static_cast<std::uint32_t>(value), digits).shown; };
  };
  face.facts.push_back(Fact("PI", heard.pi, number(4)));
  Face::Shown country = Fact(radio::InWords("Country"), heard.country, number(2));
  if (heard.country.IsHeard() && heard.pi.IsHeard()) {
    const std::string name = CountryOf(heard.pi.value, heard.country.value);
    if (!name.empty()) country.text += " " + name;
  }
  face.facts.push_back(std::move(country));
  face.facts.push_back(Fact(radio::InWords("Language"), heard.language,
                            [](int code) { return LanguageValue(code).shown; }));
  face.facts.push_back(Fact("PTY", heard.pty, [](int pty) { return PtyValue(pty).shown; }));
  Face::Shown type_name =
      Fact("PTYN", heard.type_name, [](const auto& bytes) { return air::RadioText(bytes); });
  if (!heard.type_name.IsHeard() && heard.type_name_building.Came() != 0) {
    type_name.text = Building(heard.type_name_building.Bytes(), heard.type_name_building.Came()) +
                     " (" + InWords(Hearing::kBeing) + ")";
    type_name.hearing = Hearing::kBeing;
  }
  face.facts.push_back(std::move(type_name));
  face.facts.push_back(
      Fact("PIN", heard.item, [](const auto& item) { return ItemNumberValue(item).shown; }));
  ShowClock(heard.clock, time, face);
  Face::Shown linkage =
      Fact("LI", heard.linkage, [](const auto& link) { return LinkageValue(link).shown; });
  const bool known = heard.linkage.IsHeard() || heard.linked.IsHeard();
  const bool active = heard.linked.IsHeard() ? heard.linked.value : heard.linkage.value.la;
  if (known) {
    const std::string la = active ? radio::InWords("linked") : radio::InWords("not linked");
    linkage.text = heard.linkage.IsHeard() ? la + ", " + linkage.text : la;
    linkage.hearing = Hearing::kHeard;
  }
  face.facts.push_back(std::move(linkage));
}

void ShowLamps(const air::Reception& heard, Face& face) {
  Face::Lamp ta = LampOf("TA", heard.ta, OnOffValue);
  ta.announces = ta.lit;
  face.lamps = {LampOf("TP", heard.tp, OnOffValue),
                std::move(ta),
                LampOf("M/S", heard.music, MusicValue),
                LampOf(radio::InWords("Stereo"), heard.stereo, OnOffValue),
                LampOf(radio::InWords("Dynamic PTY"), heard.dynamic_pty, OnOffValue),
                LampOf(radio::InWords("Artificial head"), heard.artificial_head, OnOffValue),
                LampOf(radio::InWords("Compressed"), heard.compressed, OnOffValue)};
}

void ShowGroups(const air::GroupTraffic& traffic, const Prepared* station, Face& face) {
  const bool compares = station != nullptr && station->groups;
  int whole = 0;
  if (compares) {
    for (const auto& group : *station->groups) whole += group.enabled ? group.repetitions : 0;
  }
  for (std::size_t i = 0; i < face.groups.size(); ++i) {
    Face::Group& group = face.groups[i];
    const int index = static_cast<int>(i);
    group.name = air::GroupKind::OfIndex(index).Name();
    group.heard = traffic.last_minute.Share(index);
    group.words = group.name + " " + OneDecimal(100 * group.heard) + " %";
    group.has_prepared = compares;
    if (!compares) continue;
    const Prepared::Group& prepared = station->groups->at(i);
    if (prepared.enabled && whole > 0) group.prepared = 1.0 * prepared.repetitions / whole;
    group.words =
        radio::InWords("%1, prepared %2 %", {group.words, OneDecimal(100 * group.prepared)});
  }
  face.traffic = radio::InWords(
      "%1 groups a second, %2 % of the blocks missing in the last minute",
      {OneDecimal(traffic.groups_a_second), OneDecimal(traffic.last_minute.MissingPercent())});
}

}  // namespace

void AirTime::Set(air::AirSeconds air, DateTime local) {
  air_ = air;
  local_ = local;
  const std::chrono::duration<double> passed = local - fixed_local_;
  if (set_ && std::abs(passed.count() - (air - fixed_air_)) < kDrift) return;
  set_ = true;
  fixed_air_ = air;
  fixed_local_ = local;
}

DateTime AirTime::At(air::AirSeconds when) const {
  return fixed_local_ +
         std::chrono::floor<std::chrono::seconds>(std::chrono::duration<double>(when - fixed_air_));
}

Face FaceOf(const air::Reception& heard, const Prepared* station, const AirTime& time) {
  Face face;
  face.name = NameOf(heard.ps);
  face.name_state = InWords(face.name.hearing);
  ShowText(heard.rt, face);
  ShowTexts(heard.rt, time, face);
  ShowLamps(heard, face);
  ShowFacts(heard, time, face);
  ShowFrequencies(heard.frequencies, face);
  ShowNetworks(heard.networks, face);
  ShowData(heard, face);
  ShowGroups(heard.groups, station, face);
  return face;
}

}  // namespace corvalis::radio
