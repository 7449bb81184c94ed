// Groups of real transmitters, and what an independent decoder made of them.

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "air/characters.h"
#include "air/hex_text.h"
#include "air/receiver.h"
#include "config/programme_types.h"
#include "station/country_table.h"
#include "station/language_codes.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

using nlohmann::json;

template <typename Bytes>
std::string Shown(const Bytes& bytes) {
  std::string text = air::RadioText(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string Hex(unsigned value) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "0x";
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[value >> shift & 0xF];
  return text;
}

std::string TwoDigits(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

template <typename Set>
json Kilohertz(const Set& set) {
  json list = json::array();
  for (const auto& entry : set) {
    if (entry.IsHeard()) list.push_back(entry.value.Kilohertz());
  }
  return list;
}

// Of what the decoder said, what it says where a radio heard it; null for what was not heard. Small
// letters, and no blanks at the end.
class Sayings {
 public:
  template <typename Value, typename Says>
  void Put(const char* name, const air::Item<Value>& item, const Says& says) {
    if (item.IsHeard()) said[name] = says(item.value);
  }
  void PutCommon(const air::Item<bool>& tp, const air::Item<bool>& ta, const air::Item<int>& pty,
                 const air::Item<air::ItemNumber>& item) {
    Put("tp", tp, Same);
    Put("ta", ta, Same);
    Put("prog_type", pty, [](int type) { return ProgramTypeNames().at(type); });
    Put("prog_item_number", item, [](const auto& number) { return air::WordOf(number); });
    Put("prog_item_started", item, [](const air::ItemNumber& number) {
      return json{{"day", number.day},
                  {"time", TwoDigits(number.hour) + ":" + TwoDigits(number.minute)}};
    });
  }
  static bool Same(bool value) { return value; }

  json said;
};

json NetworkSaid(const air::OtherNetwork& network) {
  Sayings s;
  if (!network.IsHeard()) return {};
  s.said["pi"] = Hex(network.pi);
  s.PutCommon(network.tp, network.ta, network.pty, network.item);
  s.Put("ps", network.name, Shown<air::EightBytes>);
  s.Put("has_linkage", network.linkage, [](const auto& linkage) { return linkage.la; });
  for (const auto& pair : network.pairs) s.said["kilohertz"] = pair.value.other.Kilohertz();
  return s.said;
}

json Said(const air::Reception& heard) {
  Sayings s;
  s.Put("pi", heard.pi, Hex);
  s.PutCommon(heard.tp, heard.ta, heard.pty, heard.item);
  s.Put("is_music", heard.music, Sayings::Same);
  Sayings di;
  di.Put("stereo", heard.stereo, Sayings::Same);
  di.Put("artificial_head", heard.artificial_head, Sayings::Same);
  di.Put("compressed", heard.compressed, Sayings::Same);
  di.Put("dynamic_pty", heard.dynamic_pty, Sayings::Same);
  s.said["di"] = di.said;
  s.Put("ps", heard.ps.now, Shown<air::EightBytes>);
  s.Put("radiotext", heard.rt.now, Shown<std::vector<std::uint8_t>>);
  s.Put("pty_name", heard.type_name, Shown<air::EightBytes>);
  s.Put("has_linkage", heard.linked, Sayings::Same);
  s.Put("language", heard.language, [](int code) { return LanguageOfCode(code); });
  s.Put("country", heard.country, [&](int ecc) {
    for (const CountryRecord& country : Countries()) {
      if (country.ecc == ecc && country.country == heard.pi.value >> 12) return country.name;
    }
    return std::string_view();
  });
  s.Put("clock_time", heard.clock, [](const air::ClockTime& clock) {
    const auto day = std::chrono::floor<std::chrono::days>(clock.Local());
    const std::chrono::year_month_day date(day);
    const auto minutes = (clock.Local() - day).count();
    const auto offset = clock.Offset().count();
    return std::to_string(static_cast<int>(date.year())) + "-" +
           TwoDigits(static_cast<int>(static_cast<unsigned>(date.month()))) + "-" +
           TwoDigits(static_cast<int>(static_cast<unsigned>(date.day()))) + "T" +
           TwoDigits(static_cast<int>(minutes / 60)) + ":" +
           TwoDigits(static_cast<int>(minutes % 60)) + ":00" + (offset < 0 ? "-" : "+") +
           TwoDigits(static_cast<int>(std::abs(offset) / 60)) + ":" +
           TwoDigits(static_cast<int>(std::abs(offset) % 60));
  });
  for (const auto& list : heard.frequencies.b) {
    s.said["alt_frequencies_b"] = {{"tuned_frequency", list.tuned.Kilohertz()},
                                   {"same_programme", Kilohertz(list.same)},
                                   {"regional_variants", Kilohertz(list.regional)}};
  }
  s.said["alt_frequencies_a"] = Kilohertz(heard.frequencies.a);
  for (const auto& network : heard.networks) s.said["other_network"] = NetworkSaid(network);
  return s.said;
}

constexpr std::pair<const char*, const char*> kSpellings[] = {
    {"no program type or undefined", "no pty"},
    {"serious classics", "serious classical"},
    {"light classics", "light classical"},
    {"finland", "fi"}};

std::string Plain(const json& value) {
  std::string text = value.dump();
  std::transform(text.begin(), text.end(), text.begin(), [](char c) { return std::tolower(c); });
  if (!value.is_string()) return text;
  text = text.substr(1, text.find_last_not_of(" \""));
  for (const auto& [ours, theirs] : kSpellings) {
    if (text == ours) text = theirs;
  }
  return text;
}

void ExpectSaid(const json& expected, const json& said, const std::string& name) {
  for (const auto& [key, value] : expected.items()) {
    if (value.is_object()) {
      ExpectSaid(value, said.value(key, json::object()), name + " " + key);
    } else {
      EXPECT_EQ(Plain(said.value(key, json())), Plain(value)) << name << " " << key;
    }
  }
}

TEST(ReceivedGroups, SayWhatAnotherDecoderUnderstood) {
  std::ifstream facts(std::string(kAirFacts) + "/received-groups.txt");
  if (!facts) GTEST_SKIP() << "the facts are not here";
  std::string name;
  std::vector<air::HeardGroup> groups;
  int cases = 0;
  for (std::string line; std::getline(facts, line);) {
    if (line.starts_with("# ")) {
      name = line.substr(2);
      groups.clear();
    } else if (line.starts_with("= ") && !groups.empty()) {
      air::Receiver radio;
      double at = 0;
      for (int i = 0; i < 4; ++i) {
        for (const auto& group : groups) radio.Hear(group, at += 104 / 1187.5);
      }
      ExpectSaid(json::parse(line.substr(2)), Said(radio.Heard()), name);
      ++cases;
    } else if (const auto group = air::ReadHexLine(line)) {
      groups.push_back(*group);
    }
  }
  EXPECT_GE(cases, 9);
}

}  // namespace
}  // namespace corvalis::test
