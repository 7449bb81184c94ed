// What a Coder holds, as whoever judges it wants to know it.

#include "coder/facts.h"

#include <gtest/gtest.h>

#include "air/judge.h"
#include "coder/listener.h"

namespace corvalis::coder {
namespace {

using Lines = std::vector<std::string>;

Lines Judged(const Coder& coder) {
  Lines lines;
  for (const auto& finding : air::Judge(FactsOf(coder))) {
    // The reason's beginning is enough to tell it.
    lines.push_back(
        air::Words(air::Finding{finding.item, finding.reason.substr(0, 14), finding.figures}));
  }
  return lines;
}

TEST(Facts, AreWhatTheMemorySays) {
  Listener air;
  EXPECT_EQ(Judged(air.coder), (Lines{"PI: programme numb (1000)", "PSN 00: a name of blan"}));

  air.Write(kPi, 0, "0001");
  air.Write(kTa, 0, "1");
  air.Write(kPty, 0, "1F");
  air.Write(kPtyn, 31, "ALARM\x01  ");
  air.Write(kPsn, 3, Name(1, "A\x7F"));
  air.Write(kPsn, 4, Name(1, "B"));
  air.Write(kRt, 1, Rt(0, "\x02"));
  air.Write(kRt, 2, Rt(5, "A\rB"));
  air.Write(kAf, 0, "E3FD8A00" + std::string(44, 'C'));
  air.Write(kAf, 7, "E0" + std::string(50, '0'));
  air.Write(kCt, 0, "26112531700080924");
  air.Write(kEcc, 0, "00");
  air.Write(kLic, 0, "15");
  air.Write(kPin, 1, "0000CC80");
  air.Write(kLi, 0, "100000");
  air.Write(kTdc, 4, "1A0000001");
  air.Write(kIh, 3 * kPageStep, "003" + Padded("TEXT", 128));
  air.Write(kTmcSystem, 0, "00120000");
  air.Write(kTmc, 2, "001000000000");
  air.Write(kEon, 1, "NETWORK 01000000CDCDCDCDCDCDCDCDCDCDCDCD00011");
  air.Write(kEon, 2, "OFF     01000000CDCDCDCDCDCDCDCDCDCDCDCD00010");
  air.Write(kEnable, 0, "0102");
  air.Write(kEnable, 2, "0112");
  const auto deaf = [](const char* item, const char* groups) {
    return std::string(item) + ": of the groups  (" + groups + ")";
  };
  EXPECT_EQ(Judged(air.coder), (Lines{deaf("PIN", "1A, 1B"),
                                      deaf("ECC", "1A"),
                                      deaf("LIC", "1A"),
                                      deaf("CT", "4A"),
                                      deaf("TDC", "5A"),
                                      deaf("IH", "6A"),
                                      deaf("TMC", "8A"),
                                      deaf("PTYN", "10A"),
                                      deaf("EON", "14A"),
                                      deaf("LI", "14A"),
                                      "PI: country 0 is n (0001)",
                                      "PI: coverage 0 is  (0001)",
                                      "ECC: no country has (00)",
                                      "TA: radios ignore ",
                                      "PTY: 31 is the alar",
                                      "PSN 03: this character (7F)",
                                      "PTYN: this character (01)",
                                      "PSN 03: the name chang (1 s < 3.5 s)",
                                      "PSN 04: the name chang (1 s < 3.5 s)",
                                      "AF 00: some radios dr (101.325 MHz)",
                                      "AF 00: radios take th (87.5 MHz)",
                                      "RT 02: a 0D is the en (1 / 3)",
                                      "EON 01: another networ (0001)",
                                      "EON 01: radios ignore  (0001)",
                                      "EON 01: without a freq (0001)",
                                      "LI: the set 000 is",
                                      "TMC system: table 0 announ",
                                      "TMC system: without a scop",
                                      "TMC 02: location 0 is "}));

  // Pages take the place of the list: the active one, and those that the plan makes active.
  air.Write(kTp, 0, "1");
  for (const char* row : {"0", "1", "2"}) {
    air.Write(kPsnPage, (row[0] - '0') * kPageStep + 5, row + Name(9, "\x03"));
  }
  air.Write(kPsnPlan, 3, "10602280228000000002");
  air.Write(kPsnPlan, 4, "00602280228000000001");
  Lines names;
  for (const auto& set : FactsOf(air.coder).names) {
    for (const auto& name : set) names.push_back(name.item + Digits(name.seconds, 10) + name.bytes);
  }
  EXPECT_EQ(names, (Lines{"PSN page 00 row 0509\x03       ", "PSN page 02 row 0509\x03       "}));
  air.Write(kPsnPageActive, 0, "4");
  EXPECT_EQ(FactsOf(air.coder).names.back().at(0).item, "PSN page 04 row 00");
  air.Write(kEon, 1, "NETWORK 11000000057FCD017D057DCD007D0687542B1");
  EXPECT_TRUE(FactsOf(air.coder).tp);
  const auto networks = FactsOf(air.coder).networks;
  EXPECT_EQ(networks.at(0).codes, (std::vector<std::uint8_t>{5, 0x7F}));
  EXPECT_EQ(networks.at(0).pairs, 2);
}

}  // namespace
}  // namespace corvalis::coder
