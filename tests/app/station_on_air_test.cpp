// The sample station, sent whole: what the air then says is what stands in the file.

#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>
#include <set>
#include <sstream>

#include "air/af_codes.h"
#include "air/judge.h"
#include "coder/facts.h"
#include "coder/listener.h"
#include "coder/memory_text.h"
#include "support/places.h"
#include "support/sent_station.h"

namespace corvalis::test {
namespace {

using Lines = coder::Listener::Lines;
using coder::Digits;

std::string Hex(int value, int digits = 4) {
  std::string text;
  for (; digits > 0; digits -= 2) text.insert(0, Digits(value & 0xFF, 16)), value >>= 8;
  return text;
}
std::string HexOf(const std::string& two) {
  return Hex(static_cast<std::uint8_t>(two[0]) << 8 | static_cast<std::uint8_t>(two[1]));
}
int Bit(bool on, int at) { return on ? 1 << at : 0; }
int Code(const std::string& megahertz) { return air::AfFreqCode(std::stof(megahertz)); }
bool None(const std::string& frequency) { return std::stof(frequency) == 0; }
Lines Repeated(const Lines& lines, std::size_t count) {
  Lines all;
  while (all.size() < count) all.push_back(lines[all.size() % lines.size()]);
  return all;
}

class StationOnAirTest : public SentStation {
 protected:
  StationOnAirTest() {
    SendAll(SampleFile());
    EXPECT_EQ(coder::ReadMemory(coder::MemoryText(the_coder), air.coder), "");
  }

  // What the file says.
  std::string Value(const std::string& section, const std::string& key) {
    return profiles.Read(ProgramFile(), section, key);
  }
  bool On(const std::string& section, const std::string& key) {
    return Value(section, key) == "On";
  }
  int HexValue(const std::string& section, const std::string& key) {
    return std::stoi(Value(section, key), nullptr, 16);
  }
  Lines Fields(const std::string& section, const std::string& key) {
    Lines fields;
    std::istringstream text(Value(section, key));
    for (std::string field; std::getline(text, field, ';');) fields.push_back(field);
    return fields;
  }
  int Pi() {
    return HexValue("PI", "Country") << 12 | HexValue("PI", "Coverage") << 8 |
           HexValue("PI", "Program Number");
  }
  // What 14A says of a network.
  Lines Network(const std::string& number) {
    const auto value = [&](const char* key) { return Value("EON", key + number); };
    const bool tp = value("Tp") == "On";
    Lines lines;
    const auto add = [&](int variant, const std::string& content) {
      lines.push_back(Hex(Bit(tp, 4) | variant, 2) + " " + content + " " + value("Pi"));
    };
    const std::string name = coder::Padded(value("Psn"), 8);
    for (int pair = 0; pair < 4; ++pair) add(pair, HexOf(name.substr(2 * pair, 2)));
    std::string codes;
    for (const std::string& own : Fields("EON", "AfMethodA" + number)) {
      if (!None(own)) codes += Hex(Code(own), 2);
    }
    codes.insert(0, Hex(224 + static_cast<int>(codes.size()) / 2, 2));
    if (codes.size() % 4 != 0) codes += "CD";
    for (std::size_t at = 0; at < codes.size(); at += 4) add(4, codes.substr(at, 4));
    const Lines pairs = Fields("EON", "AfMethodB" + number);
    for (std::size_t pair = 0; pair < 4; ++pair) {
      const auto& [here, there] = std::pair(pairs[2 * pair], pairs[2 * pair + 1]);
      if (!None(here) && !None(there)) {
        add(5 + static_cast<int>(pair), Hex(Code(here), 2) + Hex(Code(there), 2));
      }
    }
    if (!None(pairs[8]) && !None(pairs[9])) {
      add(9, Hex(Code(pairs[8]), 2) + Hex(air::AmFreqCode(std::stof(pairs[9])), 2));
    }
    add(13, Hex(HexValue("EON", "Pty" + number) << 11 | Bit(value("Ta") == "On", 0)));
    add(14, Hex(std::stoi(value("Pin"))));
    return lines;
  }

  coder::Listener air;
};

TEST_F(StationOnAirTest, SaysWhatTheFileSays) {
  air.HearUntil(700);
  const auto expect = [this](const std::string& group, const Lines& lines) {
    const Lines said = air.Said(group);
    ASSERT_GE(said.size(), lines.size()) << group;
    EXPECT_EQ(said, Repeated(lines, said.size())) << group;
  };

  const int head = Bit(On("RDS Setup", "TP"), 10) | std::stoi(Value("RDS Setup", "PTY")) << 5;
  const int switches = Bit(On("RDS Setup", "TA"), 4) | Bit(On("RDS Setup", "Music"), 3);
  const bool di[] = {!On("DI", "Static PTY"), On("DI", "Compressed"), On("DI", "Artificial Head"),
                     !On("DI", "Mono")};
  Lines fast;
  for (int segment = 0; segment < 4; ++segment) {
    const int own = switches | Bit(di[segment], 2) | segment;
    fast.push_back(Hex(own, 2) + " " + Hex(0xF800 | head | own));
  }
  expect("15B", fast);
  EXPECT_EQ(air.Next().blocks[0], Pi());

  std::set<std::string> names;
  for (int row = 0; row < 50; ++row) {
    const Lines name = Fields("PSN Pages", "Psn00." + Digits(row, 10));
    const bool clock = row == std::stoi(Value("CT", "Date Psn Number")) ||
                       row == std::stoi(Value("CT", "Hour Psn Number"));
    if (name.size() > 2 && name[1] == "On" && !clock) names.insert(name[2]);
  }
  names.insert("15.11.26");
  std::set<std::string> shown;
  for (const std::string& name : air.Said("PS")) {
    shown.insert(name.starts_with("12:") ? "12:" : name);
  }
  names.insert("12:");
  EXPECT_EQ(shown, names);

  Lines texts;
  for (int row = 0; row < 10; ++row) {
    std::string text = Fields("RT", "Rt" + Digits(row, 10)).at(1);
    text.resize(text.find_last_not_of(' ') + 1);
    texts.push_back(text);
  }
  Lines heard = air.Said("RT");
  heard.erase(std::unique(heard.begin(), heard.end()), heard.end());
  char flag = heard.front()[0];
  for (std::string& text : heard) {
    EXPECT_EQ(text[0], flag) << "turns at each text";
    flag = flag == '0' ? '1' : '0';
    text = text.substr(1, text.find('\r') - 1);
  }
  EXPECT_EQ(heard, Repeated(texts, heard.size()));
  EXPECT_GT(heard.size(), 2 * texts.size());

  const Lines pairs = air.Said("AF");
  const auto next = std::find(pairs.begin() + 1, pairs.end(), pairs.front());
  EXPECT_EQ(pairs, Repeated(Lines(pairs.begin(), next), pairs.size())) << "99 lists are empty";
  air::AfCodes codes{};
  codes.fill(air::kAfFiller);
  std::size_t at = 0;
  for (auto pair = pairs.begin(); pair != next; ++pair) {
    for (const std::size_t half : {0, 2}) {
      codes.at(at++) = static_cast<std::uint8_t>(std::stoi(pair->substr(half, 2), nullptr, 16));
    }
  }
  std::set<float> frequencies = {air::kNoFreq};
  for (const std::string& one : Fields("AF Method A", "FreqList"))
    frequencies.insert(std::stof(one));
  EXPECT_TRUE(frequencies.contains(101.325F) && frequencies.contains(1458));
  const air::AfFrequencies list = air::AfAFrequencies(codes);
  EXPECT_EQ(std::set<float>(list.begin(), list.end()), frequencies);

  const int offset = std::stoi(Value("CT", "Clock Time Offset"));
  Lines times;
  for (int minute = 0; minute <= 11; ++minute) {
    times.push_back("61359 " + std::to_string(12 - offset / 2) + ":" + std::to_string(minute) +
                    " +" + std::to_string(offset));
  }
  EXPECT_EQ(air.Said("4A"), times);
  for (const std::string& name : air.Said("PTYN")) EXPECT_EQ(name.substr(1), "LAKESIDE");

  Lines networks;
  for (const char* number : {"0", "1", "2"}) {
    const Lines network = Network(number);
    networks.insert(networks.end(), network.begin(), network.end());
  }
  const int linkage = Bit(On("LI", "La"), 15) | Bit(On("LI", "Egi"), 14) | Bit(On("LI", "Il"), 12) |
                      HexValue("LI", "Lsn");
  networks.push_back("1C " + Hex(linkage) + " " + Hex(Pi()));
  expect("14A", networks);
  expect("14B",
         {"10 " + Value("EON", "Pi0"), "10 " + Value("EON", "Pi1"), "00 " + Value("EON", "Pi2")});

  const int scopes = Bit(On("TMC", "International"), 3) | Bit(On("TMC", "National"), 2) |
                     Bit(On("TMC", "Regional"), 1) | Bit(On("TMC", "Urban"), 0);
  expect("3A", {"10 " + Hex(std::stoi(Value("TMC", "Ltn")) << 6 | scopes) + " CD46",
                "10 " + Hex(0x4000 | std::stoi(Value("TMC", "Sid")) << 6) + " CD46"});
  Lines messages;
  for (int number = 0; number < 4; ++number) {
    const Lines message = Fields("TMC", "Msg" + Digits(number, 10));
    const int content = Bit(message[5] == "On", 15) | Bit(message[3] == "On", 14) |
                        std::stoi(message[4]) << 11 | std::stoi(message[1]);
    messages.insert(messages.end(), 3,
                    Hex(8 | std::stoi(message[2]), 2) + " " + Hex(content) + " " + message[0]);
  }
  expect("8A", messages);

  Lines data;
  const auto bits = [](const std::string& text) { return std::bitset<32>(text).to_ulong(); };
  const auto add = [&](int channel, unsigned long word) {
    data.push_back(Hex(channel, 2) + " " + Hex(static_cast<int>(word >> 16)) + " " +
                   Hex(static_cast<int>(word & 0xFFFF)));
  };
  for (const char* key : {"Ch01", "Ch02"}) {
    const Lines channel = Fields("TDC0", key);
    add(0, std::stoul(channel[0], nullptr, 16) << 20 | bits(channel[2]));
  }
  for (const int number : {2, 3})
    add(number, bits(Fields("TDC", "Ch0" + std::to_string(number))[1]));
  expect("5A", data);

  std::map<std::string, Lines> pages;
  for (const auto& [number, name] : {std::pair("00", "harbour"), {"01", "service"}}) {
    std::string text = ReadFile(std::string(kExamples) + "/" + name + ".txt");
    text.resize((text.size() + 3) / 4 * 4, '\r');
    for (std::size_t i = 0; i < text.size(); i += 4) {
      pages[number].push_back(std::string(number) + " " + HexOf(text.substr(i, 2)) + " " +
                              HexOf(text.substr(i + 2, 2)));
    }
  }
  Lines said = air.Said("6A");
  ASSERT_FALSE(said.empty());

  std::set<std::string> whole;
  for (std::string number;
       number = said.front().substr(0, 2), said.size() > pages[number].size();) {
    const auto end = said.begin() + static_cast<std::ptrdiff_t>(pages[number].size());
    EXPECT_EQ(Lines(said.begin(), end), pages[number]);
    said.erase(said.begin(), end);
    whole.insert(number);
  }
  EXPECT_EQ(whole.size(), 2U);
}

TEST_F(StationOnAirTest, TurnsToEachItemOfTheFile) {
  const int country = Bit(On("LI", "La"), 15) | HexValue("PI", "Extended Country Code");
  const int language =
      Bit(On("LI", "La"), 15) | 0x3000 | HexValue("PI", "Language Identification Code");
  for (int row = 0; row < 14; ++row) {
    const Lines item = Fields("PIN", "Pin0" + Digits(row, 10));
    const std::string time = item[1].substr(0, 2) + item[1].substr(3);
    air.Write(coder::kCt, 0, "2611253" + time + "080926");
    air.Said("1A");
    while (air.said["1A"].size() < 2) air.Hear(1);
    const int number =
        std::stoi(item[0]) << 11 | std::stoi(time.substr(0, 2)) << 6 | std::stoi(time.substr(2));
    Lines said = air.Said("1A");
    std::ranges::sort(said);
    EXPECT_EQ(said, (Lines{"00 " + Hex(country) + " " + Hex(number),
                           "00 " + Hex(language) + " " + Hex(number)}));
  }
}

TEST_F(StationOnAirTest, IsFoundGoodByRadiosButForOneList) {
  const auto facts = coder::FactsOf(air.coder);
  Lines found;
  for (const auto& finding : air::Judge(facts)) found.push_back(Words(finding));
  EXPECT_EQ(found, Lines{"AF 00: some radios drop a list with a frequency between the steps of "
                         "100 kHz (101.325 MHz)"});
  EXPECT_EQ(air::FiguresOf(facts).places, 19);
}

}  // namespace
}  // namespace corvalis::test
