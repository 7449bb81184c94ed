// Groups of real transmitters, and what an independent decoder made of them.

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "air/characters.h"
#include "air/hex_text.h"
#include "air/receiver.h"
#include "support/heard_facts.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

using nlohmann::json;

// The decoder's names and ours; an empty one for what another one tells too.
const std::map<std::string, std::string> kNames = {{"tp", "TP"},
                                                   {"ta", "TA"},
                                                   {"prog_type", "PTY"},
                                                   {"is_music", "music"},
                                                   {"stereo", "stereo"},
                                                   {"artificial_head", "artificial head"},
                                                   {"ps", "PS"},
                                                   {"compressed", "compressed"},
                                                   {"pty_name", "PTYN"},
                                                   {"dynamic_pty", "dynamic PTY"},
                                                   {"radiotext", "RT"},
                                                   {"prog_item_number", "PIN"},
                                                   {"country", "ECC"},
                                                   {"prog_item_started", ""},
                                                   {"language", "language"},
                                                   {"tuned_frequency", ""},
                                                   {"kilohertz", "pair 91900 ="},
                                                   {"same_programme", "AF B 94000 same"},
                                                   {"regional_variants", "AF B 94000 regional"}};
// Its words and our numbers.
const std::map<std::string, std::string> kWords = {
    {"No PTY", "0"}, {"Current affairs", "2"}, {"Culture", "7"},
    {"Varied", "9"}, {"Pop music", "10"},      {"Serious classical", "14"},
    {"fi", "225"},   {"National music", "26"}, {"Finnish", "39"}};

class Sayings {
 public:
  explicit Sayings(const air::Reception& heard) : heard_(heard), facts_(HeardFacts(heard)) {}

  // All that is expected in an object; `of` is the network that it tells of.
  void Expect(const json& expected, const std::string& of = "") const {
    for (const auto& [key, value] : expected.items()) {
      if (key == "other_network") {
        Expect(value, "EON " + value["pi"].get<std::string>().substr(2) + " ");
      } else if (key == "clock_time") {
        ExpectTime(value);
      } else if (key == "pi") {
        EXPECT_TRUE(!of.empty() || Says("PI " + value.get<std::string>().substr(2))) << value;
      } else if (key == "has_linkage") {
        EXPECT_TRUE(Says(of.empty() ? "LA off" : of + "linkage 0000")) << value;
      } else if (value.is_object() && !kNames.contains(key)) {
        Expect(value, of);
      } else if (const std::string& name = kNames.at(key); !name.empty()) {
        for (const json& one : value.is_array() ? value : json::array({value})) {
          EXPECT_TRUE(Says(of + name + " " + TextOf(key, one))) << of << key << " " << one;
        }
      }
    }
  }

 private:
  static std::string TextOf(const std::string& key, const json& value) {
    if (value.is_boolean()) return value.get<bool>() ? "on" : "off";
    if (value.is_number()) {
      char digits[8];
      std::snprintf(digits, sizeof digits, key == "prog_item_number" ? "%04X" : "%d",
                    value.get<int>());
      return digits;
    }
    const auto word = kWords.find(value);
    if (word != kWords.end()) return word->second;
    const auto bytes = air::RadioBytes(value.get<std::string>());
    const std::string text(bytes.begin(), bytes.end());
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  // But for blanks at the end, which the decoder leaves out.
  [[nodiscard]] bool Says(const std::string& fact) const {
    const auto found = facts_.lower_bound(fact);
    return found != facts_.end() && found->starts_with(fact) &&
           found->find_first_not_of(" \r", fact.size()) == std::string::npos;
  }
  void ExpectTime(const std::string& local) const {
    int year = 0, hour = 0, minute = 0;
    unsigned month = 0, day = 0;
    std::sscanf(local.c_str(), "%d-%u-%uT%d:%d", &year, &month, &day, &hour, &minute);
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    EXPECT_EQ(heard_.clock.value.Local(), std::chrono::local_days(date) + std::chrono::hours(hour) +
                                              std::chrono::minutes(minute))
        << local;
  }

  const air::Reception& heard_;
  std::set<std::string> facts_;
};

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
      const testing::ScopedTrace trace(__FILE__, __LINE__, name);
      air::Receiver radio;
      double at = 0;
      for (int i = 0; i < 4; ++i) {
        for (const auto& group : groups) radio.Hear(group, at += 104 / 1187.5);
      }
      Sayings(radio.Heard()).Expect(json::parse(line.substr(2)));
      ++cases;
    } else if (const auto group = air::ReadHexLine(line)) {
      groups.push_back(*group);
    }
  }
  EXPECT_GE(cases, 9);
}

}  // namespace
}  // namespace corvalis::test
