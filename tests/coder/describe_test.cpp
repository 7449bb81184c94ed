// What the Coder's program says, and what it is told.

#include "coder/describe.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "coder/frames.h"
#include "coder/options.h"

namespace corvalis::coder {
namespace {

TEST(Describe, PutsWhatTheCoderTookIntoWords) {
  struct {
    Bytes sent;
    const char* words;
  } const cases[] = {
      {{kEnq}, "ENQ"},
      {Frame(0x08, 0, "AB   "), "Address <- \"AB   \""},
      {Frame(0x08, 1, "C\2   "), "Address, new identity <- \"C.   \""},
      {Frame(0x01, 0, "5201"), "PI <- 5201 (country 5, coverage 2, programme 01)"},
      {Frame(0x04, 0, "9"), "DI <- 9 (stereo, dynamic PTY)"},
      {Frame(0x09, 19, "0163"), "Enable 19 <- 0163 (group 3B on, repetitions 99)"},
      {Frame(0x0D, 0, "1F"), "PTY <- 1F (type 31)"},
      {Frame(0x10, 0, "26111572359070822"),
       "CT <- 26111572359070822 (26-11-15 weekday 7, 23:59, date on PSN 07, hour on PSN 08, offset "
       "-2 half hours)"},
      {Frame(0x1B, 0, "100501"),
       "LI <- 100501 (linkage on, extended generic off, international off, set number 501)"},
      {Frame(0x19, 0), "ECC read -> E0"},
      {Frame(0x03, 7, "05RADIO\1  "), "PSN 7 <- 05RADIO.   (rotation 5)"},
      {Frame(0x1C, 10, "205RADIO  A"), "PSN page 2 row 10 <- 205RADIO  A (rotation 5)"},
      {Frame(0x1D, 0, "3"), "PSN active page <- 3 (page 3)"},
      {Frame(0x1F, 4, "1063000000010101000F"),
       "PSN plan 4 <- 1063000000010101000F (on, 06:30 Mon Wed Fri, page 15)"},
      {Frame(0x1F, 4, "00000241226000000003"),
       "PSN plan 4 <- 00000241226000000003 (off, 00:00 on 26-12-24, page 3)"},
      {Frame(0x06, 9, "01057B6D"), "PIN 9 <- 01057B6D (day 15, 13:45, type 05, issued)"},
      {Frame(0x12, 1, "0030012"), "IH end 3 <- 0030012 (rotation 12)"},
      {Frame(0x18, 3, "1"), "EON TA 3 <- 1 (on)"},
      {Frame(0x16, 3, "NETWORK 101000007DCD057FCDCDCDCDCDCDCD0152011"),
       "EON 3 <- NETWORK 101000007DCD057FCDCDCDCDCDCDCD0152011 (on, PI 5201, TP on, TA off, type "
       "16, PIN 0000, method A 100.0, method B 88.0, 100.2, 153 kHz)"},
      {Frame(0x21, 0, "0A3F1001"),
       "TMC system <- 0A3F1001 (location table 10, service 63, international, urban)"},
      {Frame(0x22, 2, "1F4FFFF1705F"),
       "TMC 2 <- 1F4FFFF1705F (event 500, location 65535, duration 5, direction, extent 7, "
       "repetition 15)"},
      {Frame(0x20, 0), "PSN plan count read -> 14 (20)"},
      {{2, 1, 0, 3, 0x0A}, "refused, error 1 (checksum wrong): 02 01 00 03 0A"},
  };
  Coder coder("AB", true);
  std::vector<std::string> lines;
  coder.Happened = [&lines](const Event& event) { lines.push_back(Describe(event)); };
  for (const auto& c : cases) {
    lines.clear();
    static_cast<void>(coder.Take(c.sent));
    static_cast<void>(coder.LinePause());
    EXPECT_EQ(lines, std::vector<std::string>{c.words});
  }
}

TEST(Describe, TellsTheFrequenciesOfAList) {
  struct {
    const char* name;
    std::string codes;
    const char* words;
  } const cases[] = {
      {"none", "E0", "count 224"},
      {"FM, its ends, both offsets, LF and MF", "EA00CCFD01FE7DFFCBFA01FA0FFA10FA87",
       "count 234: 87.5, 107.9, 87.625, 100.05, 107.875, 153 kHz, 279 kHz, 531 kHz, 1602 kHz"},
      {"method B, the main frequency on either side", "E57D737D7D87",
       "count 229: main 100.0 with 99.0, 101.0"},
      {"an even count is not method B", "E47D737D7D87",
       "count 228: 100.0, 99.0, 100.0, 100.0, 101.0"},
      {"a code that says nothing", "E1D0", "count 225: code 208"},
  };
  for (const auto& c : cases) {
    Coder coder;
    std::string body = c.codes;
    while (body.size() < 52) body += "CD";
    ASSERT_TRUE(coder.SetItem(0x05, 0, Text(body)));
    EXPECT_NE(Dump(coder).find(" (" + std::string(c.words) + ")  \"" + body), std::string::npos)
        << c.name << "\n"
        << Dump(coder);
  }
}

TEST(Describe, DumpsTheSingleValuesAndWhatHasBeenWritten) {
  Coder coder;
  ASSERT_TRUE(coder.SetItem(0x01, 0, Text("5201")));
  ASSERT_TRUE(coder.SetItem(0x11, 130, Text("1A1\2\3\x80 ~Z")));
  ASSERT_TRUE(coder.SetItem(0x1C, 0x90A, Text("900  \"QUOTE")));
  ASSERT_TRUE(coder.SetItem(0x12, 0xD10, Text("00D0007")));
  const std::string dump = Dump(coder);
  EXPECT_TRUE(
      dump.starts_with("PI 00: 35 32 30 31 (country 5, coverage 2, programme 01)  \"5201\"\n"
                       "TP 00: 30 (off, never written)  \"0\"\n"))
      << dump;
  for (const char* line :
       {"\nTDC 82: 31 41 31 02 03 80 20 7E 5A (on)  \"1A1... ~Z\"\n",
        "\nPSN page 09 row 0A: 39 30 30 20 20 22 51 55 4F 54 45 (rotation 0)  \"900  \"QUOTE\"\n",
        "\nIH end 0D: 30 30 44 30 30 30 37 (rotation 7)  \"00D0007\"\n",
        "\nIH count 00: 30 30 45 (14)  \"00E\"\n"}) {
    EXPECT_NE(dump.find(line), std::string::npos) << line << dump;
  }
  EXPECT_EQ(dump.find("\nTDC 00"), std::string::npos) << "never written";
}

TEST(Options, TakeCountsByName) {
  Options options;
  EXPECT_EQ(ParseOptions(std::vector<const char*>{"--count", "ih=4095,psn=0"}, options), "");
  EXPECT_EQ(options.counts.ih, 4095);
  EXPECT_EQ(options.counts.psn, 0);
  EXPECT_EQ(options.counts.af, 100);
  for (const char* list :
       {"", "psn", "psn=", "psn=1,", "psn=1,psn=2", "psn=-1", "psn=1 ", "ps=1"}) {
    EXPECT_NE(ParseOptions(std::vector<const char*>{"--count", list}, options), "") << list;
  }
}

TEST(Options, SayWhatIsWrong) {
  struct {
    std::vector<const char*> words;
    const char* sentence;
  } const cases[] = {
      {{"--fast"}, "unknown option --fast"},
      {{"--open", "--link"}, "--link wants a path"},
      {{"--id", "ABCDEF"}, "--id wants 1 to 5 characters, not \"ABCDEF\""},
      {{"--stop-bits", "3"}, "--stop-bits wants 1 or 2, not \"3\""},
      {{"--baud", "9600x"}, "--baud wants a number from 1, not \"9600x\""},
      {{"--modem", "engaged"}, "--modem wants answer, busy, refuse or silent, not \"engaged\""},
      {{"--count", "pin=10,page=16"},
       "--count wants counts such as psn=50,page=10, none twice and none above "
       "psn=255,page=15,plan=255,rt=255,pin=255,af=255,eon=255,tmc=255,ih=4095, not "
       "\"pin=10,page=16\""},
      {{"--air-speed", "0", "--air", "-"}, "--air-speed 0 wants --air-groups"},
      {{"--late", "-1"}, "--late wants a number of milliseconds from 0, not \"-1\""},
  };
  for (const auto& c : cases) {
    Options options;
    EXPECT_EQ(ParseOptions(c.words, options), c.sentence);
  }
}

}  // namespace
}  // namespace corvalis::coder
