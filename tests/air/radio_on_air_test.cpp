// A radio and the air of a whole station: all is heard, and nothing that was not said.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "air/group.h"
#include "air/receiver.h"
#include "coder/listener.h"
#include "coder/memory_text.h"
#include "support/heard_facts.h"
#include "support/places.h"
#include "support/spoilt_air.h"

namespace corvalis::test {
namespace {

using coder::Listener;
using Facts = std::set<std::string>;

std::string FileText(const std::string& name) {
  std::ifstream file(std::string(kTestData) + "/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(RadioOnAir, HearsTheSampleStationWhole) {
  coder::Coder coder;
  ASSERT_EQ(coder::ReadMemory(FileText("lake-fm.memory"), coder), "");
  const auto groups = AirOf(coder, 600);
  air::Receiver radio;
  Hear(groups, {}, 0, radio);
  std::istringstream lines(FileText("lake-fm.heard"));
  Facts expected;
  for (std::string line; std::getline(lines, line);) expected.insert(line);
  const Facts facts = HeardFacts(radio.Heard());
  std::vector<std::string> different;
  std::set_symmetric_difference(facts.begin(), facts.end(), expected.begin(), expected.end(),
                                std::back_inserter(different));
  EXPECT_EQ(different, std::vector<std::string>());
  const air::GroupTraffic& traffic = radio.Heard().groups;
  EXPECT_EQ(traffic.all.groups, groups.size());
  EXPECT_NEAR(traffic.groups_a_second, 1187.5 / 104, 0.1);
  EXPECT_NEAR(static_cast<double>(traffic.last_minute.groups), 680, 10);
  EXPECT_EQ(traffic.last_minute.MissingPercent(), 0);
  EXPECT_NEAR(traffic.last_minute.Share(2), 3 / 19.0, 0.01);
}

// Names and texts that begin or end alike, short ones among them, on for a second or two.
void FillWithLikes(coder::Coder& coder) {
  const auto put = [&](std::uint8_t command, int number, const std::string& body) {
    ASSERT_TRUE(coder.SetItem(command, number, coder::Text(body))) << body;
  };
  for (const int group : {0, 2, 10, 14, 6})
    put(coder::kEnable, group, group == 2 ? "0103" : "0101");
  const char* const names[] = {"LAKE FM", "LAKE ONE", "LATE FM", "BAKE FM", "LA  ONE"};
  const char* const texts[] = {"Now", "Now on air: the news at eight",
                               "Now on air: the jazz at eight", "Now on",
                               "Not on air: the news at eight, and then"};
  for (int i = 0; i < 5; ++i) {
    put(coder::kPsn, i, coder::Name(1 + i % 2, names[i]));
    put(coder::kRt, i, coder::Rt(1, texts[i]));
  }
}

// Everything that is heard with blocks missing is heard by who hears them all, in an hour that
// changes all the time.
TEST(RadioOnAir, NeverHearsWhatWasNotSaid) {
  const auto sample = [](coder::Coder& coder) {
    ASSERT_EQ(coder::ReadMemory(FileText("lake-fm.memory"), coder), "");
  };
  const std::function<void(coder::Coder&)> stations[] = {sample, FillWithLikes};
  for (std::size_t station = 0; station < std::size(stations); ++station) {
    coder::Coder coder;
    stations[station](coder);
    const auto groups = AirOf(coder, 1200, [&](int minute) {
      const std::string which = std::to_string(minute % 3);
      const auto put = [&](std::uint8_t command, int number, const std::string& body) {
        ASSERT_TRUE(coder.SetItem(command, number, coder::Text(body))) << body;
      };
      put(coder::kPtyn, 10, "TYPE " + which + " X");
      put(coder::kEon, 0, "RIDGE" + which + "  110ACC80807D057FCD0606CCCDCD6487542B1");
      put(coder::kRt, 1, coder::Rt(15, "Good morning from the lake, part " + which + " of three"));
      put(coder::kPin, 0, "000F780" + which);
    });
    Facts said;
    air::Receiver all;
    Hear(groups, {}, 0, all, [&](double) {
      said.merge(HeardFacts(all.Heard()));
      return true;
    });
    const std::size_t heard_whole = HeardFacts(all.Heard()).size();
    for (const Loss& loss : kLosses) {
      std::size_t most = 0;
      for (unsigned seed = 0; seed < 5; ++seed) {
        air::Receiver radio;
        Facts facts;
        Hear(groups, loss, seed, radio, [&](double at) {
          if (static_cast<int>(at) % 20 == 0) facts.merge(HeardFacts(radio.Heard()));
          return true;
        });
        most = std::max(most, facts.size());
        std::vector<std::string> false_ones;
        std::set_difference(facts.begin(), facts.end(), said.begin(), said.end(),
                            std::back_inserter(false_ones));
        EXPECT_EQ(false_ones, std::vector<std::string>()) << station << " " << loss.name;
      }
      EXPECT_GT(most, heard_whole / 3) << station << " " << loss.name;
    }
  }
}

}  // namespace
}  // namespace corvalis::test
