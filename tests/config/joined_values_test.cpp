#include "config/joined_values.h"

#include <gtest/gtest.h>

namespace corvalis {
namespace {

TEST(JoinedValues, AWrittenTextStaysOnItsLine) {
  JoinedWriter writer;
  writer.Number(-5, 2).Switch(true).Text(std::string("a\r\nb\0c\x81", 7)).Add("");
  EXPECT_EQ(writer.Separated(), "-05;On;a  b c\x81;");
  EXPECT_EQ(writer.Ended(), "-05;On;a  b c\x81;;");
  EXPECT_EQ(JoinedWriter().Add("").Add("x").Separated(), ";x");
}

TEST(JoinedValues, AFieldThatIsNoNumberLeavesItsTarget) {
  const std::pair<const char*, int> cases[] = {
      {"12", 12},  {"+7;", 7}, {"0255;x", 255}, {"256", 99}, {"-1", 99},         {" 1 ", 1},
      {"0x1", 99}, {" ", 99},  {";5", 99},      {"1.0", 99}, {"99999999999", 99}};
  for (const auto& [text, value] : cases) {
    std::uint8_t target = 99;
    JoinedReader(text).Number(target);
    EXPECT_EQ(target, value) << text;
  }
}

TEST(JoinedValues, FieldsAreReadInTheirOrderAndAMissingOneIsEmpty) {
  std::int16_t first = 1;
  std::int32_t second = 2;
  std::int16_t missing = 3;
  std::string text = "kept";
  bool on[4] = {false, false, true, true};
  JoinedReader reader("bad;70000;oN;On;ON;");
  reader.Number(first).Number(second).Switch(on[0]).ExactSwitch(on[1]).ExactSwitch(on[2]);
  reader.Text(text).Number(missing).Switch(on[3]);
  EXPECT_EQ(std::tuple(first, second, missing, text), std::tuple(1, 70000, 3, ""));
  EXPECT_EQ(std::tuple(on[0], on[1], on[2], on[3]), std::tuple(true, true, false, false));
}

}  // namespace
}  // namespace corvalis
