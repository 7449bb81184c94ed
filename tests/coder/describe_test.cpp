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

TEST(Describe, DumpsEachItemInALine) {
  Coder coder;
  ASSERT_TRUE(coder.SetItem(0x01, 0, Text("5201")));
  ASSERT_TRUE(coder.SetItem(0x11, 130, Text("1A1\2\3\x80 ~Z")));
  const std::string dump = Dump(coder);
  EXPECT_TRUE(
      dump.starts_with("PI 00: 35 32 30 31 (country 5, coverage 2, programme 01)  \"5201\"\n"
                       "TP 00: 30 (off)  \"0\"\n"))
      << dump;
  EXPECT_NE(dump.find("\nTDC 82: 31 41 31 02 03 80 20 7E 5A (on)  \"1A1... ~Z\"\n"),
            std::string::npos);
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
      {{"--late", "-1"}, "--late wants a number of milliseconds from 0, not \"-1\""},
  };
  for (const auto& c : cases) {
    Options options;
    EXPECT_EQ(ParseOptions(c.words, options), c.sentence);
  }
}

}  // namespace
}  // namespace corvalis::coder
