// Names, texts and pages on the air, one after the other and never mixed.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "coder/listener.h"

namespace corvalis::coder {
namespace {

using Lines = Listener::Lines;

TEST(OnAir, LetsNamesTakeTurns) {
  Listener air;
  air.Enable({"0A", "0B"});
  air.Write(kPsn, 0, Name(0, "STILL"));
  air.Hear(8);
  EXPECT_EQ(air.Said("PS"), (Lines{"STILL   ", "STILL   "}));
  air.Write(kPsn, 3, Name(2, "THREE"));
  air.Write(kPsn, 1, Name(1, "ONE"));
  air.Hear(3 * 4);  // a name of four segments takes 0.35 seconds
  air.Write(kPsn, 7, Name(1, "SEVEN"));
  air.Hear(17 * 4);
  std::string order;
  for (const std::string& name : air.Said("PS")) order += name[0];
  EXPECT_EQ(order, "OOOTTTTTTSSSOOOTTTTT");
}

TEST(OnAir, ShowsDateAndHourAndFollowsThePlanOfPages) {
  Listener air;
  air.Write(kPsn, 8, Name(9, "(DATE)"));
  air.Hear(4);
  air.Write(kCt, 0, "28022870559080924");  // Monday, 05:59 on the day before a leap day
  air.HearUntil(60.4);
  air.Write(kPsn, 9, Name(9, "(HOUR)"));
  air.Write(kPsn, 8, Name(0, ""));
  air.HearUntil(62);
  const Lines shown = air.Said("PS");
  EXPECT_EQ(shown.front(), "(DATE)  ");
  EXPECT_EQ(shown[1], "28.02.28");
  EXPECT_EQ(shown.back(), "06:00   ");

  air.Write(kPsnPage, 2 * kPageStep, "2" + Name(0, "TWO"));
  air.Write(kPsnPage, 4 * kPageStep + 5, "4" + Name(5, "FOUR"));
  air.Hear(8);
  EXPECT_EQ(air.Said("PS").back(), "        ") << "name 0 of page 0";
  air.Write(kPsnPageActive, 0, "2");
  // At 06:02 by weekday, at 06:04 by date; not enabled, another day, another date.
  for (const char* row : {"10602000000100000004", "10604280228000000002", "00603000000100000003",
                          "10603000000011111103", "10603280227100000003", "10603280328100000003"}) {
    static int number = 0;
    air.Write(kPsnPlan, number++, row);
  }
  for (const auto& [until, name] :
       {std::pair(179, "TWO     "), {183, "FOUR    "}, {299, "FOUR    "}, {303, "TWO     "}}) {
    air.HearUntil(until);
    EXPECT_EQ(air.Said("PS").back(), name) << until;
  }
  EXPECT_EQ(air.coder.Item(kPsnPageActive), Text("2")) << "who reads the active page is told";
  // A clock that is set reaches a row's minute, or jumps over it.
  for (const auto& [time, name] : {std::pair("0602", "FOUR    "),
                                   {"0604", "TWO     "},
                                   {"0601", "TWO     "},
                                   {"0603", "TWO     "}}) {
    air.Write(kCt, 0, "2802287" + std::string(time) + "080924");
    air.Hear(8);
    EXPECT_EQ(air.Said("PS").back(), name) << time;
  }
  air.Write(kCt, 0, "28022870602080924");
  air.Hear(1);
  air.Write(kPsnPageActive, 0, "2");
  air.Hear(8);
  EXPECT_EQ(air.Said("PS").back(), "TWO     ") << "a row acts once";
}

TEST(OnAir, ShowsPagesOnceTheyAreInUse) {
  struct {
    std::uint8_t command;
    int number;
    std::string body;
    bool in_use;
  } const cases[] = {
      {kPsnPage, 1, "0" + Name(0, "ROW"), false},
      {kPsnPage, 1, "0" + Name(1, "ROW"), true},
      {kPsnPageActive, 0, "0", true},
      {kPsnPlan, 3, "10602000000100000003", true},
      {kPsnPlan, 3, "00602000000100000003", false},
  };
  for (const auto& c : cases) {
    Listener air;
    air.Write(kPsn, 0, Name(1, "LIST"));
    air.Write(c.command, c.number, c.body);
    air.Hear(4);
    EXPECT_EQ(air.Said("PS").front() != "LIST    ", c.in_use) << c.body;
  }
  Listener air;
  for (int row = 0; row < 3; ++row) {
    for (const int page : {0, 1}) {
      air.Write(kPsnPage, page * kPageStep + row, Digits(page, 10)[1] + Name(1, Digits(row, 10)));
    }
  }
  air.Hear(6 * 4);
  air.Write(kPsnPageActive, 0, "1");
  air.Hear(3 * 4);
  std::string order;
  for (const std::string& name : air.Said("PS")) order += name[1];
  EXPECT_EQ(order, "000111000") << "a page begins with its first name";
}

TEST(OnAir, EndsTextsAndTurnsTheFlagAtEachOther) {
  struct {
    std::size_t length;
    int groups_long, groups_short;
  } const cases[] = {{0, 1, 1},   {1, 1, 1},   {3, 1, 2},    {4, 2, 3},   {31, 8, 16},
                     {32, 9, 16}, {33, 9, 16}, {63, 16, 16}, {64, 16, 16}};
  std::string flag = "1";
  for (const bool is_long : {true, false}) {
    Listener air;
    air.Enable({is_long ? "2A" : "2B"});
    for (const auto& c : cases) {
      const std::string text(c.length, static_cast<char>('a' + c.length));
      air.Write(kRt, 0, Rt(1, text));
      const std::size_t most = is_long ? 64 : 32;
      const std::size_t width = is_long ? 4 : 2;
      const int groups = is_long ? c.groups_long : c.groups_short;
      air.Hear(2 * groups);
      const std::string said =
          Padded(text.substr(0, most),
                 text.size() < most ? static_cast<std::size_t>(groups) * width : most);
      Lines heard = air.Said(is_long ? "RT" : "RT short");
      ASSERT_EQ(heard.size(), 2U) << c.length;
      EXPECT_EQ(heard[0], heard[1]);
      EXPECT_NE(heard[0].substr(0, 1), flag);
      flag = heard[0].substr(0, 1);
      std::ranges::replace(heard[0], '\r', ' ');
      EXPECT_EQ(heard[0].substr(1), said);
    }
    flag = "1";
  }
}

TEST(OnAir, SendsATextWholeBeforeTheNext) {
  Listener air;
  air.Enable({"2A", "2B", "0A"});
  air.Write(kRt, 4, Rt(60, Padded("", 60) + "FOUR"));
  air.Write(kRt, 9, Rt(20, "NINE"));
  air.HearUntil(600);
  Lines texts = air.Said("RT");
  EXPECT_EQ(
      std::ranges::count_if(texts, [](const auto& t) { return t.ends_with("FOUR"); }) +
          std::ranges::count_if(texts, [](const auto& t) { return t.substr(1, 4) == "NINE"; }),
      static_cast<int>(texts.size()));
  texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
  EXPECT_GE(texts.size(), 13U) << "80 seconds for both, and to the end of each";
  EXPECT_LE(texts.size(), 16U);
  air.Write(kRt, 4, Rt(0, ""));
  air.Write(kRt, 9, Rt(0, ""));
  air.Hear(9);
  air.Said("group");
  air.Hear(9);
  EXPECT_EQ(air.Said("group"), Lines(9, "0A"));
}

TEST(OnAir, WaitsForNoKindOfTextThatIsOff) {
  Listener air;
  air.Enable({"2A", "2B"});
  air.Write(kRt, 0, Rt(1, "LONG ENOUGH"));
  air.Write(kRt, 1, Rt(1, "NEXT"));
  air.Hear(2);
  air.Enable({"2A"});
  air.Hear(50);
  const Lines said = air.Said("RT");
  EXPECT_NE(std::ranges::find(said, "1NEXT\r\r\r\r"), said.end());
}

// Names and texts that are written all the time come whole or not at all.
TEST(OnAir, NeverMixesTwoTexts) {
  Listener air;
  air.Enable({"0A", "0B", "2A", "2B", "10A", "14A"});
  std::mt19937 random(7);
  const auto letters = [&random](std::size_t length) {
    return std::string(length, static_cast<char>('A' + random() % 26));
  };
  for (int i = 0; i < 40000; ++i) {
    if (random() % 3 == 0) air.Write(kPsn, static_cast<int>(random() % 4), "02" + letters(8));
    if (random() % 9 == 0) {
      const std::size_t length = random() % 65;
      air.Write(kRt, static_cast<int>(random() % 3),
                Rt(static_cast<int>(random() % 4), letters(length)));
    }
    if (random() % 9 == 0) air.Write(kPtyn, 0, letters(8));
    if (random() % 50 == 0)
      air.Write(kPsnPage, static_cast<int>(random() % 2), "0" + Name(1, "PPPP"));
    air.Hear(1);
  }
  for (const char* subject : {"PS", "RT", "RT short", "PTYN"}) {
    const Lines said = air.Said(subject);
    EXPECT_GT(said.size(), 100U) << subject;
    for (const std::string& text : said) {
      std::string letters_of = text;
      std::erase_if(letters_of,
                    [](char c) { return c == ' ' || c == '\r' || c == '0' || c == '1'; });
      EXPECT_EQ(letters_of.find_first_not_of(letters_of.substr(0, 1)), std::string::npos) << text;
    }
  }
}

}  // namespace
}  // namespace corvalis::coder
