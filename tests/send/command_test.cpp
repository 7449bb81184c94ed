#include "send/command.h"

#include <gtest/gtest.h>

#include "send/carried_text.h"
#include "send/words.h"

namespace corvalis::test {
namespace {

TEST(SendWords, AreThoseOfAShell) {
  using Words = std::vector<std::string>;
  EXPECT_EQ(send::SplitWords("  a 'b \"c' \"d\\\"\\\\\\n' e\"f g\\ h#i # j"),
            (Words{"a", "b \"c", "d\"\\\\n' ef", "g h#i"}));
  EXPECT_EQ(send::SplitWords("a '' \"\""), (Words{"a", "", ""}));
  EXPECT_FALSE(send::SplitWords("a 'b"));
  EXPECT_FALSE(send::SplitWords("a b\\"));
}

TEST(SendCommand, SaysWhatIsWrongWithALine) {
  const std::pair<const char*, const char*> cases[] = {
      {"rt", "the row is a number from 0 to 255"},
      {"rt 256 x", "the row is a number from 0 to 255"},
      {"rt 1", "the text is missing"},
      {"rt 1 --time 15 --cut", "the text is missing"},
      {"rt 1 Now playing",
       "\"playing\" is too much; a text of several words has to stand in quotes"},
      {"rt 1 x --time 100", "the time behind --time is a number from 0 to 99"},
      {"rt 1 \"x", "a quote, or what follows a backslash, is missing"},
      {"ps 1 123456789", "the text has 9 characters, and there is room for 8"},
      {"ps-page 16 1 x", "the page is a number from 0 to 15"},
      {"page -1", "the page is a number from 0 to 15"},
      {"ptyn 32 x", "the programme type is a number from 0 to 31"},
      {"ptyn 1 x --time 3",
       "\"--time\" is too much; a text of several words has to stand in quotes"},
      {"pty 32", "the programme type, unless it is a name of the list, is a number from 0 to 31"},
      {"pty Popp", "the programme type, unless it is a name of the list, is a number from 0 to 31"},
      {"ta yes", "the switch is on or off"},
      {"TA=2", "the switch is on or off"},
      {"ta on off", "\"off\" is too much"},
      {"ct 12:00", "the time to send is the present one: ct now"},
      {"tmc 1 65536 1", "the location is a number from 0 to 65535"},
      {"tmc 1 1 1 1 on 2 off 16", "the repetition is a number from 0 to 15"},
      {"raw 0", "a frame is command, index and body, two hexadecimal digits a byte"},
      {"raw 0F0G", "\"0G\" is no byte"},
      {"af", "af is no command of its own: send af sends the list"},
      {"send ih", "in-house pages are only read"},
      {"read raw", "\"raw\" is nothing that can be read"},
      {"address AB", "\"address\" is no command"},
  };
  for (const auto& [line, error] : cases) {
    const send::Parsed parsed = send::ParseLine(line);
    EXPECT_FALSE(parsed.command) << line;
    EXPECT_EQ(parsed.error, error) << line;
  }
  EXPECT_EQ(send::ParseLine("send a,b").error.substr(0, 37),
            "send takes all, or a list of psn, rt,");
  for (const char* empty : {"", "  \r", "# rt 1 x"}) {
    EXPECT_FALSE(send::ParseLine(empty).command) << empty;
    EXPECT_EQ(send::ParseLine(empty).error, "") << empty;
  }
}

TEST(SendCommand, NewerValuesOfAnItemHaveItsKey) {
  const std::pair<const char*, const char*> cases[] = {
      {"rt 1 x", "rt 1"},
      {"RT=x", "rt 0"},
      {"ps-page 2 3 x", "ps-page 2 3"},
      {"pty Alarm", "pty"},
      {"send rt,tp", "send rt tp"},
      {"raw 010250", "raw 1 2"},
      {"read rt 1", ""},
      {"eon-ta 2 off", "eon-ta 2"},
  };
  for (const auto& [line, key] : cases) EXPECT_EQ(send::ParseLine(line).command->Key(), key);
}

TEST(SendText, IsCarriedRefusedReplacedOrCut) {
  struct Case {
    const char* text;
    send::TextRules rules;
    const char* bytes;
    const char* error;
  };
  const Case cases[] = {
      {"caf\xC3\xA9 \xE2\x82\xAC", {}, "caf\xE9 \x80", ""},
      {"cafe\xCC\x81", {}, "caf\xE9", ""},
      {"ab\xC5\x81",
       {},
       "",
       "character 3 of the text, \"\xC5\x81\" (U+0141), is none that the line carries"},
      {"\xF0\x9F\x8E\xB5",
       {},
       "",
       "character 1 of the text, \"\xF0\x9F\x8E\xB5\" (U+1F3B5), is none that the line carries"},
      {"a\nb", {}, "", "character 2 of the text, (U+000A), is none that the line carries"},
      {"a\xE9", {}, "", "character 2 of the text, is no UTF-8 (byte E9)"},
      {"\xC5\x81\xC3\xB3\xC4\x8D\xE2\x88\x92\xEF\xAC\x81\n\xE9",
       {.replace = true},
       "L\xF3"
       "c-fi \xE9",
       ""},
      {"\xF0\x9F\x8E\xB5\xD0\x96", {.replace = true}, "??", ""},
      {"one two three", {}, "", "the text has 13 characters, and there is room for 8"},
      {"one two three", {.cut = true}, "one two", ""},
      {"one  two", {.cut = true}, "one  two", ""},
      {"onetwothree", {.cut = true}, "onetwoth", ""},
      {"         x", {.cut = true}, "        ", ""},
  };
  for (const Case& one : cases) {
    const send::CarriedText carried = send::Carry(one.text, 8, one.rules);
    EXPECT_EQ(carried.bytes, one.bytes) << one.text;
    EXPECT_EQ(carried.error, one.error) << one.text;
  }
}

}  // namespace
}  // namespace corvalis::test
