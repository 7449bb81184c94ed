// The line's faults, one by one.

#include "coder/line.h"

#include <gtest/gtest.h>

#include <memory>

#include "coder/frames.h"

namespace corvalis::coder {
namespace {

const Bytes kWrite = Frame(0x02, 0, "1");
const Bytes kRead = Frame(0x02, 0);

class LineTest : public testing::Test {
 protected:
  // The answers to two writes and a read in one go.
  std::vector<Line::Answer> Three(Faults faults) {
    line = std::make_unique<Line>(coder, faults);
    return line->Take(kWrite + kWrite + kRead);
  }

  Coder coder{"?????", true};
  std::unique_ptr<Line> line;
};

TEST_F(LineTest, CarriesEachAnswerApartAndAtOnce) {
  const auto answers = Three({});
  ASSERT_EQ(answers.size(), 3U);
  EXPECT_EQ(answers[2].bytes, kAcknowledged + kWrite);
  EXPECT_EQ(answers[2].delay_seconds, 0);
  EXPECT_TRUE(line->Take({kWrite.data(), 3}).empty());
  const auto late = line->LinePause();
  ASSERT_EQ(late.size(), 1U);
  EXPECT_EQ(late[0].bytes, Refusal(6));
}

TEST_F(LineTest, SilentTakesAndSaysNothingAndLateSaysItLater) {
  EXPECT_TRUE(Three({.silent = true}).empty());
  EXPECT_EQ(coder.Item(0x02), Text("1"));
  for (const auto& answer : Three({.late_ms = 250})) EXPECT_EQ(answer.delay_seconds, 0.25);
}

TEST_F(LineTest, GarblesOneByteOfEverySecondAnswer) {
  const auto answers = Three({.garble_every = 2});
  ASSERT_EQ(answers.size(), 3U);
  EXPECT_EQ(answers[0].bytes, kAcknowledged);
  EXPECT_NE(answers[1].bytes, kAcknowledged);
  EXPECT_EQ(answers[2].bytes, kAcknowledged + kWrite);
}

TEST_F(LineTest, CutsEachAnswer) {
  const auto answers = Three({.cut_after = 3});
  ASSERT_EQ(answers.size(), 3U);
  EXPECT_EQ(answers[1].bytes, kAcknowledged);
  EXPECT_EQ(answers[2].bytes, (Bytes{kAck, kStart, 0x02}));
}

TEST_F(LineTest, UnplugsWithTheFrameAndComesBackForGood) {
  EXPECT_EQ(Three({.unplug_after = 2}).size(), 1U);
  EXPECT_TRUE(line->Unplugged());
  EXPECT_TRUE(line->Take(kRead).empty());
  line->Replug();
  EXPECT_FALSE(line->Unplugged());
  EXPECT_EQ(line->Take(kRead + kRead + kRead).size(), 3U);
}

}  // namespace
}  // namespace corvalis::coder
