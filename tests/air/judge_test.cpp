// What radios will not make of a station: each rule breaks on its own.

#include "air/judge.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <set>
#include <sstream>

#include "support/places.h"

namespace corvalis::air {
namespace {

using Facts = StationFacts;
using Lines = std::vector<std::string>;
constexpr int kB = Facts::kB;

// Everything is in it, and radios have nothing against it.
Facts Good() {
  Facts facts;
  for (const auto& [group, times] : {std::pair(0, 4),
                                     {1, 1},
                                     {2, 3},
                                     {3, 1},
                                     {4, 1},
                                     {5, 1},
                                     {6, 1},
                                     {8, 2},
                                     {10, 1},
                                     {14, 2},
                                     {kB + 14, 1},
                                     {kB + 15, 1}}) {
    facts.groups[static_cast<std::size_t>(group)] = {true, times};
  }
  facts.pi = 0x542A;
  facts.pty = 10;
  facts.tp = true;
  facts.ecc = 0xE0;
  facts.language = 0x15;
  facts.names = {{{"PSN 00", 2, "LAKE FM "}, {"PSN 01", 2, " \x91 98.4 "}}};
  facts.texts = {{"RT 00", 9, std::string(63, 'x') + "\n"}, {"RT 01", 1, "\x1F\v\r  "}};
  facts.lists = {{"AF 00", {0xE5, 0x7D, 0x7D, 0x80, 0x57, 0x7D, 0xCD, 0xCD}},
                 {"AF 01", {0xE4, 0x80, 0x80, 0x81, 0xCD, 0xFA, 0x05, 0xCD}}};
  facts.time = true;
  facts.type_name = "FOLKLORE";
  facts.items = true;
  facts.linkage = {true, 0x2A1};
  facts.networks = {{.item = "EON 00",
                     .pi = 0x542B,
                     .tp = true,
                     .ta = true,
                     .name = "RIDGE FM",
                     .codes = {0x52},
                     .pairs = 3}};
  facts.traffic_system = {9, true};
  facts.traffic_messages = {{"TMC 00", 101, 1}, {"TMC 01", 0, 0}};
  facts.channels = facts.pages = true;
  return facts;
}

struct Case {
  std::function<void(Facts&)> breaks;
  Lines found;
};

TEST(Judge, TellsHowLongThingsTakeInTheCycle) {
  Facts facts = Good();
  EXPECT_EQ(Words(FiguresOf(facts)),
            "19 places in the cycle, a whole name every 1.7 s, a radio text of 64 characters in "
            "8.9 s");
  facts.groups = {};
  facts.groups[kB] = {true, 1};
  EXPECT_EQ(Words(FiguresOf(facts)), "1 place in the cycle, a whole name every 0.4 s");
  facts.groups[kB + 2] = {true, 1};
  facts.groups[0] = {false, 9};
  EXPECT_EQ(Words(FiguresOf(facts)),
            "2 places in the cycle, a whole name every 0.7 s, a radio text of 32 characters in "
            "2.8 s");
  facts.groups = {};
  EXPECT_EQ(Words(FiguresOf(facts)), "0 places in the cycle");
}

TEST(Judge, FindsWhatRadiosWillNotMakeOfAStation) {
  const auto off = [](Facts& f, std::initializer_list<int> groups) {
    for (const int group : groups) f.groups[static_cast<std::size_t>(group)].enabled = false;
  };
  const std::string deaf = ": of the groups that (";
  const Case cases[] = {
      {[](Facts&) {}, {}},
      // Off, or without what is asked of it.
      {[&](Facts& f) {
         off(f, {0, 1, 2, 3, 4, 6, 8, 10, 14});
         f.groups[5].repetitions = 0;
         f.names[0].resize(1);
         f.ta = true;
         f.tp = false;
       },
       {"PS" + deaf + "0A, 0B)", "AF" + deaf + "0A)", "PIN" + deaf + "1A, 1B)",
        "ECC" + deaf + "1A)", "LIC" + deaf + "1A)", "RT" + deaf + "2A, 2B)", "CT" + deaf + "4A)",
        "TDC" + deaf + "5A)", "IH" + deaf + "6A)", "TMC" + deaf + "8A)", "PTYN" + deaf + "10A)",
        "EON" + deaf + "14A)", "LI" + deaf + "14A)", "TA: radios ignore an a"}},
      {[&](Facts& f) {
         off(f, {0, 1});
         f.groups[kB] = {true, 4};
         f.groups[kB + 1] = {true, 1};
         f.groups[4].repetitions = 0;
       },
       {"AF" + deaf + "0A)", "ECC" + deaf + "1A)", "LIC" + deaf + "1A)"}},
      {[&](Facts& f) {
         off(f, {1, 4, 5, 6, 8, 10, 14});
         Facts bare;
         bare.groups = f.groups;
         bare.pi = 0x502A;
         bare.names = f.names;
         bare.linkage = {false, 0};
         f = bare;
       },
       {}},

      {[](Facts& f) {
         f.pi = 0x0000;
         f.ecc = 0;
         f.pty = 31;
         f.ta = true;
         f.tp = f.networks[0].tp = false;
         f.networks[0].pi = 0;
       },
       {"PI: country 0 is none, (0000)", "PI: coverage 0 is a si (0000)",
        "PI: programme number 0 (0000)", "ECC: no country has thi (00)", "TA: radios ignore an a",
        "PTY: 31 is the alarm: r", "EON 00: another network wi (0000)",
        "EON 00: radios ignore an a (0000)"}},
      {[](Facts& f) {
         f.ecc = 0xE6;
         f.ta = true;
         f.tp = false;  // another network has it
         f.networks[0].pi = 0;
       },
       {"ECC: no country has thi (E6)", "EON 00: another network wi (0000)"}},

      {[](Facts& f) {
         f.names[0][0].bytes[7] = '\x1F';
         f.names[0][1] = {"PSN 01", 1, "        "};
         f.texts[1].bytes = "\n\x07\xFF";
         f.type_name[2] = '\x7F';
         f.networks[0].name[0] = '\xFF';
       },
       {"PSN 01: a name of blanks s", "PSN 00: this character sho (1F)",
        "RT 01: this character sho (07)", "PTYN: this character sho (7F)",
        "EON 00: this character sho (FF)", "PSN 01: the name changes b (1 s < 1.7 s)"}},
      {[](Facts& f) {
         f.groups[0].repetitions = 1;
         f.names[0][1].bytes = f.names[0][0].bytes;  // it never changes
       },
       {"PS: a radio that looks (5.6 s)"}},

      {[](Facts& f) {
         f.lists = {{"AF 00", {0xE5, 0x7D, 0xFD, 0x8A, 0xFE, 0x80}}};
       },
       {"AF 00: some radios drop a (101.325 MHz)"}},
      {[](Facts& f) {
         f.lists = {{"AF 01", {0xE3, 0x7D, 0x00}, 21}};
         f.networks[0].codes[0] = 0;
       },
       {"AF 01: radios take the co (87.5 MHz)", "EON 00: radios take the co (87.5 MHz)",
        "AF 01: a list holds 25 fr (23)", "AF 01: the count is not t (3 / 2)"}},
      {[](Facts& f) { f.lists[0].codes[6] = 0xCE; },
       {"AF 00: this code means no (CE)", "AF 00: the first frequenc (2 / 1)"}},
      {[](Facts& f) { f.lists[1].codes[2] = 0x7E; }, {"AF: more than one list (2)"}},

      {[&](Facts& f) {
         off(f, {2});
         f.groups[kB + 2] = {true, 3};
         f.texts[0].seconds = f.texts[1].seconds = 20;
         f.texts[1].bytes = std::string(32, 'y') + "  ";
       },
       {"RT 00: 2B alone is on, an (64 > 32)"}},
      {[](Facts& f) {
         f.groups[kB + 2] = {true, 1};
         f.texts[0].bytes[9] = '\r';
         f.texts[1].bytes = "1234";
       },
       {"RT: 2A and 2B are both", "RT 00: a 0D is the end: w (9 / 64)",
        "RT 00: the text changes b (9 s < 9.3 s)", "RT 01: the text changes b (1 s < 1.2 s)"}},

      {[](Facts& f) {
         f.time = false;
         f.pty = 0;
         f.networks[0].pi = f.pi;
         f.networks[0].codes.clear();
         f.networks[0].pairs = 0;
         f.linkage->set = 0;
       },
       {"CT: 4A is on, and has ", "PTYN: radios show no nam", "EON 00: another network wi (542A)",
        "EON 00: without a frequenc (542A)", "LI: the set 000 is lin"}},
      {[](Facts& f) {
         f.groups[14].repetitions = 1;
         f.networks.resize(7, f.networks[0]);
         f.networks[1].codes.clear();
         f.networks[2].pairs = 0;
       },
       {}},
      {[](Facts& f) {
         f.groups[14].repetitions = 1;
         f.networks[0].codes.resize(2, 0x33);
         f.networks.resize(7, f.networks[0]);
       },
       {"EON: it takes more than (121 s)"}},

      {[](Facts& f) {
         f.traffic_system = {0, false};
         f.traffic_messages[0].location = 0;
       },
       {"TMC system: table 0 announces ", "TMC system: without a scope re",
        "TMC 00: location 0 is none"}},
      {[&](Facts& f) { off(f, {3}); }, {"TMC: 8A means nothing w"}},
      {[&](Facts& f) {
         off(f, {3, 8});
         f.traffic_messages.clear();
       },
       {}},
      {[](Facts& f) { f.traffic_system.reset(); }, {"TMC: 8A means nothing w"}},
  };
  std::set<std::string_view> reasons;
  for (const Case& c : cases) {
    Facts facts = Good();
    c.breaks(facts);
    Lines found;
    for (const Finding& finding : Judge(facts)) {
      // The reason's beginning is enough to tell it.
      found.push_back(Words({finding.item, finding.reason.substr(0, 18), finding.figures}));
      reasons.insert(finding.reason);
    }
    EXPECT_EQ(found, c.found) << "case " << &c - cases;
  }
  std::ostringstream guide;
  guide << std::ifstream(std::string(test::kExamples) + "/../docs/guide/radios.md").rdbuf();
  for (const std::string_view reason : Reasons()) {
    EXPECT_TRUE(reasons.contains(reason)) << "no case: " << reason;
    EXPECT_NE(guide.str().find(reason), std::string::npos) << "the guide lacks: " << reason;
  }
}

}  // namespace
}  // namespace corvalis::air
