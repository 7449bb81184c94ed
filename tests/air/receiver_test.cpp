// What a radio makes of single groups: the rules.

#include "air/receiver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "air/hex_text.h"
#include "support/heard_facts.h"

namespace corvalis::test {
namespace {

constexpr double kGroup = 104 / 1187.5;

// Hears what stands between slashes, at the speed of the air: groups in hexadecimal, of 5201 if
// three blocks are told, which has come twice before; "3x" in front is how often; "Lost 5", "Break"
// and "Wait 20" are what they say.
air::Receiver Heard(const std::string& told) {
  air::Receiver radio;
  double at = 0;
  double step = kGroup;
  const auto hear = [&](const std::string& line) {
    const auto group = air::ReadHexLine(line);
    EXPECT_TRUE(group) << line;
    if (group) radio.Hear(*group, at += step);
  };
  for (int i = 0; i < 2; ++i) hear("5201 F000 0000 0000");
  std::istringstream text(told);
  for (std::string line; std::getline(text, line, '/');) {
    std::istringstream words(line);
    std::string word;
    int number = 1;
    words >> word;
    if (word == "Break") {
      radio.Break();
      continue;
    }
    if (word == "Hold") {
      step = 0;
      continue;
    }
    if (word == "Wait" || word == "Lost") words >> number;
    if (word == "Wait") {
      at += number;
      continue;
    }
    if (word == "Lost") line = "---- ---- ---- ----";
    if (word.back() == 'x') {
      number = std::stoi(word);
      line = line.substr(line.find('x') + 2);
    }
    while (number-- > 0) hear(line.size() == 14 ? "5201 " + line : line);
  }
  return radio;
}

std::string Hex(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const unsigned char byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}
// Segments of a name in 0A.
std::string Ps(const std::string& name, int from = 0, int to = 3) {
  std::string text;
  for (int s = from; s <= to; ++s) {
    text += "000" + std::to_string(s) + " E0CD " + Hex(name.substr(2 * s, 2)) + "/";
  }
  return text;
}
// Segments of a text in 2A; a "|" is its end.
std::string Rt(bool flag, std::string text, std::size_t from = 0, std::size_t to = 15) {
  std::replace(text.begin(), text.end(), '|', '\r');
  std::string lines;
  for (std::size_t s = from; s <= to && 4 * s < text.size(); ++s) {
    std::string four = text.substr(4 * s, 4);
    four.resize(4, ' ');
    lines += std::string(flag ? "201" : "200") + "0123456789ABCDEF"[s] + " " +
             Hex(four.substr(0, 2)) + " " + Hex(four.substr(2)) + "/";
  }
  return lines;
}

std::string Shown(const std::vector<std::uint8_t>& bytes) { return {bytes.begin(), bytes.end()}; }

// Those that begin so, "; " between them, and of a PI nothing.
std::string Facts(const air::Receiver& radio, const std::string& begin) {
  std::string text;
  for (const std::string& fact : HeardFacts(radio.Heard())) {
    if (fact.rfind(begin, 0) == 0) text += (text.empty() ? "" : "; ") + fact;
  }
  return text;
}

TEST(Receiver, TakesForHeardWhatTheRulesSay) {
  const std::string a = "LAKE FM ";
  const std::string b = " 98.4   ";
  const std::string text = "Jazz by the water|";
  const std::string other = "Jazz by the river|";
  const std::string day = "Jazz all day";
  const std::string full(64, 'x');
  struct {
    const char* rule;
    std::string told;
    const char* begin;
    std::string facts;
  } const cases[] = {
      {"another PI once", "5202 0000 0000 4142", "PI", "PI 5201"},
      {"another, not in a row", "5202 F000 0000 4142/F000 0000 0000/5202 F000 0000 4142", "PI",
       "PI 5201"},
      {"another, twice", "2x 5202 F400 0000 0000", "", "PI 5202; PTY 0; TP on"},
      {"all is forgotten", Ps(a) + "5202 F000 0000 0000/---- F000 0000 0000/5202 F000 0000 0000",
       "P", "PI 5202; PTY 0"},
      {"a group without PI is whose the next is",
       "2x ---- F400 0000 0000/5202 F400 0000 0000/F000 0000 0000", "TP", "TP on"},
      {"not the other's", "2x ---- F400 0000 0000/2x 5202 F000 0000 0000", "TP", "TP off"},
      {"nor one that says two", "2x 5201 FC00 5202 FC00/F000 0000 0000", "TP", "TP off"},

      {"nor what came before it", "2x ---- 1000 00E0 CC80/2x 5202 F000 0000 0000", "PIN", ""},
      {"nor half of what came before", Ps(a, 0, 1) + "5202 0002 E0CD 5A5A/5202 0003 E0CD 5A5A",
       "PS", ""},
      {"what came with another once is lost", Ps(a, 0, 1) + "5202 0002 E0CD 5A5A/" + Ps(a, 3), "PS",
       ""},
      {"not in a row over a break", "5202 F000 0000 0000/Break/5202 F000 0000 0000", "PI",
       "PI 5201"},

      {"a switch comes twice in a row", "0010 E0CD 4142/0000 E0CD 4142/0010 E0CD 4142", "TA", ""},
      {"and keeps until another did", "2x 0010 E0CD 4142/0000 E0CD 4142/0010 E0CD 4142", "TA",
       "TA on"},
      {"15B tells its second block twice", "2x 5201 F818 5201 F818/2x 5201 F800 5201 F808", "music",
       "music on"},

      {"a name in one pass", Ps(a), "PS", "PS " + a},
      {"from its first segment", Ps(a, 1) + Ps(a, 0, 0), "PS", ""},
      {"without a gap", Ps(a, 0, 1) + "---- 0002 E0CD ----/" + Ps(a, 3), "PS", ""},
      {"a change hidden by four groups", Ps(a, 0, 1) + "Lost 4/" + Ps(b, 2), "PS", ""},
      {"no change hidden by three", Ps(a, 0, 1) + "Lost 3/" + Ps(a, 2), "PS", "PS " + a},
      {"a segment again", Ps(a, 0, 1) + Ps(a, 1), "PS", "PS " + a},
      {"a segment again and other", Ps(a, 0, 1) + Ps(b, 1), "PS", ""},
      {"a break", Ps(a, 0, 1) + "Break/" + Ps(a, 2), "PS", ""},
      {"a silence", Ps(a, 0, 1) + "Wait 16/" + Ps(a, 2), "PS", ""},
      {"in 0B too", "5201 0800 5201 4C41/" + Ps(a, 1), "PS", "PS " + a},

      {"a text to its end", Rt(false, text), "RT", "RT Jazz by the water"},
      {"one of 64", Rt(false, full), "RT", "RT " + full},
      {"of 2B, 32", "5201 2800 5201 4142/5201 2801 5201 0D20", "RT", "RT AB"},
      {"in several passes", Rt(false, text, 1) + Rt(false, text, 0, 0), "RT",
       "RT Jazz by the water"},
      {"a missing block spoils its segment alone",
       "2000 4A61 ----/" + Rt(false, text, 1) + Rt(false, text, 0, 0), "RT",
       "RT Jazz by the water"},
      {"the flag turned", Rt(false, text, 0, 2) + Rt(true, other, 3), "RT", ""},
      {"the flag turned unheard", Rt(false, text, 0, 2) + "Lost 12/" + Rt(false, other, 3), "RT",
       ""},
      {"not within a second", Rt(false, text, 1) + "Lost 3/" + Rt(false, text, 0, 0), "RT",
       "RT Jazz by the water"},
      {"as much lost as is of this text", Rt(false, text, 0, 2) + "Lost 4/" + Rt(false, text, 3),
       "RT", "RT Jazz by the water"},
      {"a segment left out, nothing lost",
       Rt(false, text, 0, 2) + Rt(false, other, 4) + Rt(false, other, 3, 3), "RT", ""},
      {"another text, the same flag",
       Rt(false, text, 0, 3) + Rt(false, "Rock", 0, 0) + "Lost 3/" + Rt(false, text, 4), "RT", ""},
      {"a text without an end, twice", Rt(false, day) + Rt(false, day) + Rt(false, day, 0, 0), "RT",
       "RT " + day},
      {"once", Rt(false, day) + Rt(false, day, 0, 0), "RT", ""},
      {"with something lost",
       Rt(false, day) + Rt(false, day, 0, 1) + "Lost 1/" + Rt(false, day, 2) + Rt(false, day, 0, 0),
       "RT", ""},

      {"lost at the end", Rt(false, day) + Rt(false, day) + "Lost 1/" + Rt(false, day, 0, 0), "RT",
       ""},
      {"lost between",
       Rt(false, day) + Rt(false, day) + "Lost 1/" + Rt(false, day) + Rt(false, day, 0, 0), "RT",
       ""},

      {"a type's name, each part again behind the last",
       "A000 4A41 5A5A/A001 2020 2020/A000 4A41 5A5A", "PTYN", ""},
      {"then it counts", "2x A000 4A41 5A5A/2x A001 2020 2020/A000 4A41 5A5A", "PTYN",
       "PTYN JAZZ    "},
      {"not over the flag", "A000 4A41 5A5A/A011 2020 2020/A010 4A41 5A5A/A011 2020 2020", "PTYN",
       ""},

      {"an item number comes twice", "1000 0000 CC80", "PIN", ""},
      {"in 1A and 1B", "1000 0000 CC80/5201 1800 5201 CC80", "PIN", "PIN CC80"},
      {"country and language", "2x 1000 00E0 ----/2x 1000 3015 ----", "",
       "ECC 224; LA off; PI 5201; PTY 0; TP off; language 21"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Facts(Heard(c.told), c.begin), c.facts) << c.rule;
  }
}

TEST(Receiver, SortsFrequenciesIntoLists) {
  struct {
    const char* rule;
    const char* told;  // codes of 0A in a row, "----" where block 3 is missing, "*" a lost group
    const char* facts;
  } const cases[] = {
      {"by method A", "E341 4455 E341 4455", "AF 94000; AF 94300; AF 96000"},
      {"each code twice", "E341 4455 E341 4456", "AF 94000; AF 94300"},
      {"one alone, and none", "E141 E141 E0CD E0CD", "AF 94000"},
      {"LF, MF and between the steps", "E2CD FD41 FA10 FA05 E2CD FD41 FA10 FA05",
       "AF 189; AF 531; AF 94025"},
      {"over two groups", "E341 44FA 10CD E341 44FA 10CD", "AF 531; AF 94000; AF 94300"},
      {"no code that is none", "E541 0042 FAC8 D0FF E541 0042 FAC8 D0FF", "AF 94000; AF 94100"},
      {"nor the rest of a lost one", "E741 5A5B ---- 1011 E741 5A5B ---- 1011",
       "AF 89200; AF 94000; AF 96500; AF 96600"},
      {"nor a lost one's", "E741 5AFA ---- 1011 E741 5AFA ---- 1011",
       "AF 89200; AF 94000; AF 96500"},
      {"MF of the same code", "E241 FA41 E241 FA41", "AF 94000; AF 972"},
      {"by method B", "E541 415F 4441 E541 415F 4441",
       "AF B 94000 regional 94300; AF B 94000 same 97000"},
      {"without another", "E341 41CD 4141 E341 41CD 4141", ""},
      {"no pair of another list", "E541 415F 4442 E541 415F 4442", "AF B 94000 same 97000"},
      {"behind a gap, while the list lasts", "E741 415F ---- 4441 E741 415F * 4441",
       "AF B 94000 regional 94300; AF B 94000 same 97000"},
      {"which MF makes longer", "E641 FA10 FA11 ---- FA12 E641 FA10 FA11 ---- FA12",
       "AF 531; AF 540; AF 549; AF 94000"},
      {"and no longer", "E541 415F ---- 4441 E541 415F * 4441", "AF B 94000 same 97000"},
  };
  for (const auto& c : cases) {
    std::istringstream codes(c.told);
    std::string told;
    for (std::string code; codes >> code;) {
      told += code == "*" ? "Lost 1/" : "0000 " + code + " ----/";
    }
    EXPECT_EQ(Facts(Heard(told), "AF"), c.facts) << c.rule;
  }
}

// Of the station 5201; 542B is the other.
TEST(Receiver, HearsOfOthersAndData) {
  const std::string name = "E000 5249 542B/E001 4447 542B/E002 4520 542B/E003 464D 542B/";
  const std::string changed = "E000 5249 542B/E001 5645 542B/E002 5220 542B/E003 464D 542B/";
  struct {
    const char* rule;
    std::string told;
    const char* begin;
    const char* facts;
  } const cases[] = {
      {"a network counts from the second", "E410 5249 542B", "EON", ""},
      {"its TP", "2x E410 5249 542B", "EON", "EON 542B TP on"},
      {"its name in a second round", name + name, "EON 542B PS", "EON 542B PS RIDGE FM"},
      {"not before", name, "EON 542B PS", ""},
      {"never mixed", name + changed + changed, "EON 542B PS", ""},
      {"but the new one", name + changed + changed + changed, "EON 542B PS",
       "EON 542B PS RIVER FM"},
      {"its frequencies", "2x E004 E241 542B/E004 FA10 542B/E004 FA10 542B/E004 5BCD 542B",
       "EON 542B AF", "EON 542B AF 531; EON 542B AF 94000"},
      {"its pairs", "2x E005 5B41 542B/2x E008 CD41 542B/2x E009 5B10 542B", "EON 542B pair",
       "EON 542B pair 96600 = 531; EON 542B pair 96600 = 94000"},
      {"by 13 and 14B", "E00D 5001 542B/5201 E808 5201 542B", "EON 542B TA", "EON 542B TA on"},
      {"its type and item", "2x E00D 5001 542B/2x E00E CC80 542B", "EON 542B PT",
       "EON 542B PTY 10"},
      {"its linkage", "2x E00C 82A1 542B", "EON 542B l", "EON 542B linkage 82A1"},
      {"the station's own linkage", "2x E00C 82A1 5201/2x E00D 5001 5201", "l", "linkage 82A1"},
      {"and no announcement", "2x 5201 E808 5201 5201", "EON", ""},
      {"the network is missing", "2x E00C 82A1 ----", "EON", ""},

      {"an application comes twice", "2x 3010 0241 CD46/3010 0241 4BD7", "AID", "AID 8A CD46"},
      {"table and service of traffic messages",
       "3010 0241 CD46/3010 4480 CD46/3010 0241 CD46/3010 4480 CD46", "TMC",
       "TMC service 4480; TMC table 0241"},
      {"not of others", "2x 3010 0241 4BD7", "TMC", ""},
      {"a message comes twice", "800A 4865 04D2/800A 4866 04D2/800A 4865 04D2", "TMC",
       "TMC 1234 event 101 extent 1 direction 1 duration 2 diversion 0"},
      {"no parts of one, no tuning", "2x 8002 4865 04D2/2x 801A 4865 04D2", "TMC", ""},
      {"bytes of channels",
       "2x 5002 CA13 5CF0/2x 5201 5803 5201 4142/5004 0000 0000/2x 5005 ---- 1234", "channel",
       "channel 2 CA135CF0; channel 3 4142"},

      {"a page between two others", "6001 4142 4344/6000 4142 430D/6001 4142 4344", "page",
       "page 0 ABC"},
      {"from one 0D to the next", "2x 6000 4142 430D/6001 4142 4344", "page", "page 0 ABC"},
      {"with line ends", "6001 4142 4344/6000 4142 430D/6000 0A42 430D/6001 4142 4344", "page 0",
       "page 0 ABC\r|BC"},
      {"a line end may be missing", "6001 4142 4344/6000 4142 430D/6000 ---- 4444/6001 4142 4344",
       "page", ""},
      {"one too long", "6001 4142 4344/1100x 6000 4142 4344/6001 4142 4344", "page", ""},
      {"told once",
       "6001 2020 2020/6000 4142 4344/6000 4546 4748/6000 4142 4344/6000 4546 4748/6001 2020 2020",
       "page 0", "page 0 ABCDEFGH"},
      {"a group may be lost", "6001 4142 4344/6000 4142 4344/Lost 1/6000 4142 430D/6001 4142 4344",
       "page", ""},
      {"a block is missing", "6001 4142 4344/6000 4142 ----/6000 4142 430D/6001 4142 4344", "page",
       ""},

      {"a time that another bears out", "41C1 C3EF 5AC4/Wait 300/41C1 C3EF 5C04", "CT", "CT 4"},
      {"by the groups that came", "41C1 C3EF 5AC4/Hold/3400x F000 0000 0000/41C1 C3EF 5C04", "CT",
       "CT 4"},
      {"not by itself", "41C1 C3EF 5AC4", "CT", ""},
      {"nor by another", "41C1 C3EF 5AC4/41C1 C3EF 6AC4", "CT", ""},
      {"of no other zone", "41C1 C3EF 5AC4/41C1 C3EF 5AC2", "CT", ""},
      {"one that is none", "2x 41C1 C3EF FAC4/2x 41C1 C3EF 5ADF", "CT", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Facts(Heard(c.told), c.begin), c.facts) << c.rule;
  }
}

TEST(Receiver, RemembersTheLastTexts) {
  std::string told;
  for (int i = 0; i < 10; ++i) {
    const std::string text = "Text " + std::to_string(i) + "|";
    told += Rt(i % 2 != 0, text) + Rt(i % 2 != 0, text);
  }
  const air::Receiver radio = Heard(told);
  const air::TextOfStation& rt = radio.Heard().rt;
  EXPECT_EQ(rt.remembered.size(), 8U);
  EXPECT_EQ(Shown(rt.remembered.front().bytes), "Text 9");
  EXPECT_TRUE(rt.remembered.front().flag);
  EXPECT_EQ(Shown(rt.remembered.back().bytes), "Text 2");
  EXPECT_EQ(rt.texts.begin()->times, 2U);
  EXPECT_TRUE(rt.now.IsHeard());
  const air::Receiver turned = Heard(told + Rt(false, "Text", 0, 0));
  EXPECT_EQ(turned.Heard().rt.now.hearing, air::Hearing::kBeing);
  EXPECT_EQ(turned.Heard().rt.pairs, 3U);
}

TEST(Receiver, TakesAnyGarbage) {
  std::mt19937 random(1);
  const auto word = [&] { return static_cast<std::uint16_t>(random()); };
  air::Receiver radio;
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double steps[] = {kGroup, -5, 1e300, kInfinity, -kInfinity, std::nan("")};
  double at = 0;
  for (int i = 0; i < 100000; ++i) {
    air::HeardGroup group{{0x5201, word(), word(), word()}};
    if (i % 3 == 0) group.blocks.at(word() % 4).reset();
    const double step = i % 1000 == 0 ? steps[word() % 6] : kGroup;
    radio.Hear(group, at + step);
    if (step == kGroup) at += step;
  }
  radio.Hear({{0x5201, 0}}, std::nan(""));
  radio.Hear({{0x5201, 0}}, 0);
  const air::Reception& heard = radio.Heard();
  EXPECT_GE(heard.tp.last, at);
  EXPECT_EQ(heard.groups.all.groups, 100002U);
  EXPECT_EQ(heard.networks.size(), air::OtherNetwork::kMost);
  EXPECT_EQ(heard.traffic.messages.size(), 128U);
  EXPECT_LE(heard.ps.names.size(), 256U);
}

}  // namespace
}  // namespace corvalis::test
