// What goes next on the air, from the memory at that moment and the time.

#include "coder/on_air.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "coder/listener.h"

namespace corvalis::coder {
namespace {

using Lines = Listener::Lines;

// Name, TP and TA, PTY, PIN, codes of FM (2 and 9) and LF or MF, PI, enabled.
std::string Eon(const std::string& switches, const std::string& pi, bool enabled = true) {
  return "NETWORK " + switches + "0ACC80807D057FCD0606CCCDCD6487" + pi + (enabled ? "1" : "0");
}

TEST(OnAir, GivesEachGroupItsShareOfAnHour) {
  Listener air;
  air.Write(kCt, 0, "26112531700080924");
  air.Write(kPtyn, 0, "FOLKLORE");
  air.Write(kRt, 3, Rt(20, "TEXT"));
  air.Write(kEon, 0, Eon("00", "542B"));
  // 5A, 7A and 15A have nothing to say.
  const std::map<std::string, int> repetitions = {
      {"0A", 4},  {"1A", 2},  {"2A", 31}, {"4A", 9}, {"5A", 3},  {"7A", 2}, {"10A", 1},
      {"14A", 5}, {"15A", 2}, {"1B", 1},  {"2B", 7}, {"14B", 2}, {"15B", 1}};
  std::map<std::string, int> expected = repetitions;
  int places = 0;
  for (const auto& [name, times] : repetitions) {
    const int number = std::stoi(name) + (name.back() == 'B' ? 16 : 0);
    air.Write(kEnable, number, "01" + Digits(times, 16));
    if (name != "4A") places += times;
    if (name == "5A" || name == "7A" || name == "15A") {
      expected["0A"] += times;
      expected.erase(name);
    }
  }
  air.HearUntil(3600);
  std::map<std::string, int> heard;
  const Lines groups = air.Said("group");
  for (const std::string& name : groups) ++heard[name];
  EXPECT_EQ(heard["4A"], 61);
  const double others = static_cast<double>(groups.size()) - heard["4A"];
  EXPECT_EQ(heard.size(), expected.size());
  for (const auto& [name, times] : expected) {
    if (name == "4A") continue;
    EXPECT_NEAR(heard[name] / others, static_cast<double>(times) / places, 0.01 * times / places)
        << name;
  }
}

// A memory that keeps changing what there is to say starves nobody.
TEST(OnAir, GivesEachGroupItsTurnWhateverComesAndGoes) {
  Listener air;
  air.Enable({"0A", "1A", "5A", "15B"});
  for (int i = 0; i < 400; ++i) {
    air.Write(kTdc, 0, i % 2 == 0 ? "1A0000001" : "0A0000001");
    air.Hear(1);
  }
  for (const char* group : {"0A", "1A", "15B"}) {
    EXPECT_GT(std::ranges::count(air.said["group"], group), 70) << group;
  }
}

TEST(OnAir, TellsSwitchesInTheVeryNextGroup) {
  Listener air;
  air.Enable({"0A", "15B"});
  struct {
    std::uint8_t command;
    const char* body;
    std::uint16_t first;   // of block 1 and
    std::uint16_t second;  // of block 2, without the segment's DI
  } const cases[] = {
      {kPi, "5201", 0x5201, 0x0008}, {kTp, "1", 0x5201, 0x0408}, {kPty, "1F", 0x5201, 0x07E8},
      {kMs, "0", 0x5201, 0x07E0},    {kTa, "1", 0x5201, 0x07F0}, {kTa, "0", 0x5201, 0x07E0},
  };
  for (int start = 0; start < 2; ++start) {
    for (const auto& c : cases) {
      air.Write(c.command, 0, c.body);
      for (int i = 0; i < 2; ++i) {
        const air::Group group = air.Next();
        const int b = group.blocks[1] & 0xF800;
        EXPECT_EQ(group.blocks[0], c.first);
        EXPECT_EQ(group.blocks[1] & 0x07F8, c.second) << c.body;
        EXPECT_TRUE(b == 0 || group.blocks[3] == group.blocks[1]);
      }
    }
    air.Hear(1);  // the other group is next after each write
    air.Write(kMs, 0, "1");
    air.Write(kTp, 0, "0");
    air.Write(kPty, 0, "00");
  }
  // Dynamic PTY, compressed, artificial head, stereo.
  for (const auto& [di, bits] :
       {std::pair("1", "0001"), {"2", "0010"}, {"4", "0100"}, {"8", "1000"}}) {
    air.Write(kDi, 0, di);
    std::map<std::string, std::string> heard = {{"0A", "????"}, {"15B", "????"}};
    for (int i = 0; i < 8; ++i) {
      const std::uint16_t second = air.Next().blocks[1];
      heard[second < 0x1000 ? "0A" : "15B"][second & 3] = (second & 4) != 0 ? '1' : '0';
    }
    EXPECT_EQ(heard["0A"], bits);
    EXPECT_EQ(heard["15B"], bits);
  }
}

TEST(OnAir, TellsTheTimeAtTheEdgeOfEachMinute) {
  struct {
    const char* sent;
    Lines told;  // modified Julian day, UTC, offset in half hours
  } const cases[] = {
      {"26111572359070822", {"61360 0:59 -2", "61360 1:0 -2"}},
      {"26123142359080926", {"61405 22:59 +2", "61405 23:0 +2"}},
      {"26123142359080924", {"61405 23:59 +0", "61406 0:0 +0"}},
      {"28022920029080925", {"61829 23:59 +1", "61830 0:0 +1"}},
      {"28022922359080924", {"61830 23:59 +0", "61831 0:0 +0"}},
      {"27022872359080924", {"61464 23:59 +0", "61465 0:0 +0"}},
      {"26010140000080948", {"61040 12:0 +24", "61040 12:1 +24"}},
      {"26010140000080900", {"61041 12:0 -24", "61041 12:1 -24"}},
      {"26010140000080909", {"61041 7:30 -15", "61041 7:31 -15"}},
  };
  for (const auto& c : cases) {
    Listener air;
    air.Enable({"0A"});
    air.Write(kEnable, 4, "0100");
    air.Hear(700);
    EXPECT_EQ(air.Said("4A"), Lines()) << "no time was sent";
    air.Write(kCt, 0, c.sent);
    air.Hear(700);
    EXPECT_EQ(air.Said("4A"), c.told) << c.sent;
  }
  Listener air;
  air.Write(kEnable, 4, "0101");
  air.Write(kCt, 0, "26112531700080924");
  air.HearUntil(7 * 3600);
  const Lines groups = air.Said("group");
  int minutes = 0;
  for (std::size_t i = 1; i < groups.size(); ++i) {
    if (groups[i] != "4A") continue;
    ++minutes;
    const std::chrono::duration<double> end = GroupStart(i + 1);
    EXPECT_LE(std::abs(end.count() - 60 * minutes), 0.05);
  }
  EXPECT_EQ(minutes, 7 * 60);
  air.Write(kEnable, 4, "0001");
  air.HearUntil(7 * 3600 + 90);
  air.Write(kEnable, 4, "0101");
  air.HearUntil(7 * 3600 + 110);
  EXPECT_EQ(air.Said("group").end(), std::ranges::find(air.said["group"], "4A"))
      << "at an edge only";
}

TEST(OnAir, GivesTheFrequenciesTwoAtATime) {
  const auto filled = [](std::string codes) {
    while (codes.size() < 52) codes += "CD";
    return codes;
  };
  struct {
    std::vector<std::pair<int, std::string>> lists;
    Lines said;
  } const cases[] = {
      {{}, {"E0CD", "E0CD"}},
      {{{0, "E0"}, {1, "CDCD"}, {2, "E0"}}, {"E0CD", "E0CD"}},
      {{{0, "E27D80"}}, {"E27D", "80CD", "E27D"}},
      {{{0, "E37DCDFD87"}}, {"E37D", "CDFD", "87CD", "E37D"}},
      {{{0, "E1FA87"}}, {"E1FA", "87CD", "E1FA"}},
      {{{0, "E2CD01FACD"}}, {"E2CD", "01FA", "CDCD", "E2CD"}},
      {{{5, "E57D737D7D87"},
        {0, "E101"},
        {1, "E0"},
        {2, "FA0102"},
        {99, "F9" + std::string(50, '1')}},
       {"E101", "E57D", "737D", "7D87", "F911", "1111"}},
  };
  for (const auto& c : cases) {
    Listener air;
    for (const auto& [list, codes] : c.lists) air.Write(kAf, list, filled(codes));
    air.Hear(static_cast<int>(c.said.size()));
    EXPECT_EQ(air.Said("AF"), c.said);
  }
  Listener air;
  for (const char* codes : {"E27D80", "E27D80", "E27D80", "E37D8081"}) {
    air.Write(kAf, 0, filled(codes));
    air.Hear(1);
  }
  EXPECT_EQ(air.Said("AF"), (Lines{"E27D", "80CD", "E27D", "E37D"})) << "as it was is no other";
}

TEST(OnAir, NumbersTheProgrammeItemThatIsOn) {
  Listener air;
  air.Enable({"1A", "1B"});
  air.Write(kEcc, 0, "E0");
  air.Write(kLic, 0, "15");
  air.Write(kPin, 1, "0000CCC0");   // day 25, 19:00
  air.Write(kPin, 2, "0000CC80");   // 18:00
  air.Write(kPin, 40, "0000CCBB");  // 18:59
  air.Write(kPin, 41, "0000CCFC");  // 19:60
  air.Write(kPin, 42, "0000C5C0");  // day 24
  air.Hear(4);
  EXPECT_EQ(air.Said("1A"), (Lines{"00 00E0 0000", "00 3015 0000"}));
  EXPECT_EQ(air.Said("1B"), Lines(2, "00 0000"));
  air.Write(kLi, 0, "100501");
  for (const auto& [time, item] : {std::pair("1759", "0000"),
                                   {"1800", "CC80"},
                                   {"1858", "CC80"},
                                   {"1859", "CCBB"},
                                   {"2300", "CCC0"}}) {
    air.Write(kCt, 0, "2611253" + std::string(time) + "080924");
    air.Hear(4);
    EXPECT_EQ(air.Said("1A"),
              (Lines{"00 80E0 " + std::string(item), "00 B015 " + std::string(item)}));
    EXPECT_EQ(air.Said("1B"), Lines(2, "00 " + std::string(item))) << time;
  }
}

TEST(OnAir, TellsEverythingOfEachNetworkAndTheOwnLinkage) {
  Listener air;
  air.Enable({"14A"});
  air.Write(kPi, 0, "5201");
  air.Write(kEon, 2, Eon("11", "542B"));
  air.Write(kEon, 4, Eon("01", "542C", false));
  air.Write(kEon, 7, "SEVENTH 001F0000CD00CDCDCDCDCDCDCDCDCD0000011");
  air.Hear(8);  // of the announcement; see below
  air.Write(kLi, 0, "101A0F");
  air.Said("14A");
  air.Hear(19);
  const Lines network = {"10 4E45 542B", "11 5457 542B", "12 4F52 542B", "13 4B20 542B",
                         "14 E280 542B", "14 7DCD 542B", "15 057F 542B", "17 06CC 542B",
                         "19 6487 542B", "1D 5001 542B", "1E CC80 542B"};
  const Lines seventh = {"00 5345 0001", "01 5645 0001", "02 4E54 0001",
                         "03 4820 0001", "0D F800 0001", "0E 0000 0001"};
  Lines all = network;
  all.insert(all.end(), seventh.begin(), seventh.end());
  all.push_back("0C 9A0F 5201");
  all.push_back(network.front());
  EXPECT_EQ(air.Said("14A"), all);
}

TEST(OnAir, TellsAnAnnouncementElsewhereAtOnceEightTimes) {
  Listener air;
  air.Enable({"0A", "14B"});
  for (int list = 0; list < 10; ++list) {
    air.Write(kEon, list, Eon("10", "540" + std::to_string(list), list < 9));
  }
  air.Hear(4);
  air.Said("group");
  air.Write(kEonTa, 3, "1");
  air.Hear(10);
  EXPECT_EQ(std::ranges::count(air.said["group"], "0A"), 1);
  const Lines told = air.Said("14B");
  EXPECT_EQ(std::ranges::count(told, "18 5403"), 8);
  EXPECT_EQ(std::ranges::count(Lines(told.begin() + 2, told.begin() + 10), "18 5403"), 8);
  air.Write(kEonTa, 3, "1");
  air.Write(kEonTa, 9, "1");  // is not enabled
  air.Hear(2);
  EXPECT_EQ(air.Said("14B").size(), 1U) << "nothing turned";
  air.Enable({"0A"});
  for (int list = 0; list < 8; ++list) air.Write(kEonTa, list, list == 3 ? "0" : "1");
  air.Said("group");
  air.Hear(64);
  EXPECT_EQ(air.Said("group"), Lines(64, "14B"));
  const Lines all = air.Said("14B");
  for (int list = 0; list < 8; ++list) {
    EXPECT_EQ(std::ranges::count(all, (list == 3 ? "10 540" : "18 540") + std::to_string(list)), 8);
  }
  air.Hear(4);
  EXPECT_EQ(air.Said("group"), Lines(4, "0A"));
  air.Write(kEonTa, 3, "1");
  air.Hear(3);
  air.Write(kEonTa, 3, "0");
  air.Hear(10);
  EXPECT_EQ(std::ranges::count(air.Said("group"), "14B"), 3 + 8) << "what is over is told no more";
}

TEST(OnAir, CarriesDataPagesAndTrafficMessages) {
  Listener air;
  air.Enable({"3A", "5A", "6A", "8A", "10A"});
  air.Hear(5);
  EXPECT_EQ(air.Said("group"), Lines(5, "0A")) << "nothing to say";
  air.Write(kTdc, 0, "1A0000001");
  air.Write(kTdc, 30, "1FFFF0000");
  air.Write(kTdc, 31, "112345678");  // no channel
  air.Write(kTdc, 130, "1ABC00000");
  air.Write(kTdc, 32, "000000001");
  air.Write(kIh, 2 * kPageStep, "002" + Padded("PAGE\r\n!", 128));
  air.Write(kIh, 2 * kPageStep + kIhEnd, "0020001");
  air.Write(kIh, 5 * kPageStep + 1, "005" + Padded("FOUR", 128));
  air.Write(kTmcSystem, 0, "0A3F1001");
  air.Write(kTmc, 1, "1F4FFFF1705F");
  air.Write(kTmc, 2, "000123400000");
  air.Write(kTmc, 3, "7FF000104130");
  air.Write(kPty, 0, "05");
  air.Write(kPtyn, 5, "--------");
  air.Hear(4 * 60);
  EXPECT_EQ(Lines(air.said["3A"].begin(), air.said["3A"].begin() + 3),
            (Lines{"10 0289 CD46", "10 4FC0 CD46", "10 0289 CD46"}));
  EXPECT_EQ(Lines(air.said["5A"].begin(), air.said["5A"].begin() + 4),
            (Lines{"00 ABC0 0000", "01 A000 0001", "1F FFFF 0000", "00 ABC0 0000"}));
  Lines pages = air.Said("6A");
  EXPECT_EQ(pages[0], "02 5041 4745");
  EXPECT_EQ(pages[1], "02 0D0A 210D");
  EXPECT_EQ(pages[2], "02 5041 4745") << "one second is not over";
  const auto five = std::ranges::find(pages, "05 2020 2020");
  EXPECT_EQ(Lines(five, five + 32), Lines(32, "05 2020 2020")) << "128 blanks before the text";
  EXPECT_EQ(*(five + 32), "05 464F 5552");
  EXPECT_EQ(*(five + 33), "02 5041 4745");
  Lines messages(18, "0D 79F4 FFFF");
  messages.insert(messages.end(), 3, "0B A7FF 0001");
  messages.insert(messages.end(), 18, "0D 79F4 FFFF");
  air.said["8A"].resize(39);
  EXPECT_EQ(air.Said("8A"), messages);
  EXPECT_EQ(air.Said("PTYN"), Lines());
  air.Write(kPtyn, 6, "SOAP    ");
  air.Write(kPtyn, 5, "THRILLER");
  air.Hear(15);
  air.Write(kPty, 0, "06");
  air.Hear(10);
  const Lines names = air.Said("PTYN");
  EXPECT_EQ(names.front(), "0THRILLER");
  EXPECT_EQ(names.back(), "1SOAP    ");
}

}  // namespace
}  // namespace corvalis::coder
