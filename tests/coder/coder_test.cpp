// The Coder's side of the line: what it takes, what it keeps and why it refuses.

#include "coder/coder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "coder/frames.h"

namespace corvalis::coder {
namespace {

const Bytes kReadPi = Frame(0x01, 0);

TEST(Coder, KeepsWhatItIsSentAndReadsItBack) {
  struct {
    const char* name;
    Bytes write;
    Bytes request;
  } const cases[] = {
      {"PI", {2, 1, 0, 0x44, 0x32, 0x30, 0x41, 3, 0x07}, {2, 1, 0, 3, 0x00}},
      {"TP", {2, 2, 0, 0x31, 3, 0x32}, {2, 2, 0, 3, 0x03}},
      {"DI", {2, 4, 0, 0x46, 3, 0x43}, {2, 4, 0, 3, 0x05}},
      {"Enable 31", {2, 9, 31, 0x30, 0x31, 0x36, 0x33, 3, 0x13}, {2, 9, 31, 3, 0x17}},
      {"PTY", {2, 0x0D, 0, 0x31, 0x46, 3, 0x7B}, {2, 0x0D, 0, 3, 0x0C}},
      {"TA", {2, 0x0E, 0, 0x31, 3, 0x3E}, {2, 0x0E, 0, 3, 0x0F}},
      {"M/S", {2, 0x0F, 0, 0x30, 3, 0x3E}, {2, 0x0F, 0, 3, 0x0E}},
      {"CT", Frame(0x10, 0, "26111572359070848"), {2, 0x10, 0, 3, 0x11}},
      {"CT leap day", Frame(0x10, 0, "28022920000080900"), {2, 0x10, 0, 3, 0x11}},
      {"TDC with control bytes",
       Frame(0x11, 0, {"1\2\3\5\6\x15\0\3\xFF", 9}),
       {2, 0x11, 0, 3, 0x10}},
      {"TDC of the last subchannel", Frame(0x11, 130, "0A100000F"), {2, 0x11, 130, 3, 0x92}},
      {"ECC", {2, 0x19, 0, 0x45, 0x30, 3, 0x6D}, {2, 0x19, 0, 3, 0x18}},
      {"LIC", {2, 0x1A, 0, 0x30, 0x46, 3, 0x6D}, {2, 0x1A, 0, 3, 0x1B}},
      {"LI", {2, 0x1B, 0, 0x31, 0x30, 0x31, 0x35, 0x30, 0x31, 3, 0x1E}, {2, 0x1B, 0, 3, 0x1A}},
  };
  Coder coder("?????", true);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(coder.Take(c.write), kAcknowledged);
    EXPECT_EQ(coder.Take(c.request), kAcknowledged + c.write);
    EXPECT_FALSE(coder.InFrame());
  }
}

TEST(Coder, LeavesTheFactoryWithItemsThatItWouldTake) {
  Coder coder("?????", true);
  for (const std::uint8_t code :
       std::initializer_list<std::uint8_t>{1, 2, 4, 9, 13, 14, 15, 16, 17, 25, 26, 27}) {
    const Bytes answer = coder.Take(Frame(code, 0));
    EXPECT_EQ(coder.Take({answer.begin() + 1, answer.end()}), kAcknowledged) << int{code};
  }
}

TEST(Coder, RefusesByNumber) {
  struct {
    const char* name;
    Bytes sent;
    int error;
  } const cases[] = {
      {"wrong checksum of a write", {2, 1, 0, 0x44, 0x32, 0x30, 0x41, 3, 0x08}, 1},
      {"wrong checksum of a request", {2, 4, 0, 3, 0x06}, 1},
      {"Enable past the table", Frame(0x09, 32, "0101"), 2},
      {"TDC past the subchannels", Frame(0x11, 131), 2},
      {"a single value with an index", Frame(0x01, 1), 2},
      {"Address that is neither old nor new", Frame(0x08, 2, "?????"), 2},
      {"unknown code", Frame(0x24, 0, "12345"), 3},
      {"end byte late", Frame(0x01, 0, "52011"), 6},
      {"reading the address", Frame(0x08, 0), 7},
      {"garbage", {0x55}, 9},
      {"lower-case digits in PI", Frame(0x01, 0, "d20a"), 10},
      {"a flag of 2", Frame(0x0E, 0, "2"), 10},
      {"DI past 15", Frame(0x04, 0, "G"), 10},
      {"Enable without its constant", Frame(0x09, 0, "1101"), 10},
      {"Enable with 100 repetitions", Frame(0x09, 0, "0164"), 10},
      {"PTY 32", Frame(0x0D, 0, "20"), 10},
      {"a number of 100 in two digits", Frame(0x10, 0, "2611157235907:024"), 10},
      {"CT on 29 February 2027", Frame(0x10, 0, "27022910000080924"), 10},
      {"CT at 24 o'clock", Frame(0x10, 0, "26111572400070824"), 10},
      {"CT offset past 48", Frame(0x10, 0, "26111572359070849"), 10},
      {"another Coder's address", Frame(0x08, 0, "other"), 11},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Coder coder("?????", true);
    const auto before = coder.Item(0x01);
    EXPECT_EQ(coder.Take(c.sent), Refusal(c.error));
    EXPECT_EQ(coder.LinePause(), Bytes());
    EXPECT_EQ(coder.Item(0x01), before);
    EXPECT_EQ(coder.Take({{kEnq}}), kAcknowledged) << "it goes on";
  }
}

TEST(Coder, TakesCommandsFromItsAddressToTheNextEnq) {
  Coder coder("AB1");
  EXPECT_EQ(coder.Take(kReadPi), Refusal(8));
  EXPECT_EQ(coder.Take(Frame(0x08, 1, "NEW  ")), Refusal(8));
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "AB1")), Bytes()) << "not a whole block yet";
  EXPECT_EQ(coder.LinePause(), Refusal(6));
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "AB1  ")), kAcknowledged);
  EXPECT_TRUE(coder.Addressed());
  EXPECT_EQ(coder.Take(Frame(0x02, 0, "1")), kAcknowledged);
  EXPECT_EQ(coder.Item(0x02), Text("1"));
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "AB2  ")), Refusal(11));
  EXPECT_EQ(coder.Take(kReadPi), Refusal(8)) << "another Coder is meant from here";
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "AB1  ") + Bytes{kEnq} + kReadPi),
            kAcknowledged + kAcknowledged + Refusal(8));
}

TEST(Coder, TakesANewIdentityAndHonoursItAlone) {
  Coder coder("?????");
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "?????") + Frame(0x08, 1, "\2\3\5 9")),
            kAcknowledged + kAcknowledged);
  EXPECT_EQ(coder.Id(), "\2\3\5 9");
  EXPECT_EQ(coder.Take(kReadPi).front(), kAck) << "still addressed";
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "?????")), Refusal(11));
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "\2\3\5 9")), kAcknowledged);
}

TEST(Coder, TakesBytesInAnyPortions) {
  const Bytes raw = Frame(0x11, 3, {"1\2\1\0\3\0\5\2\3", 9});
  const Bytes line = Bytes{kEnq} + raw + Bytes{0x41, 0x42} + kReadPi + Frame(0x30, 0, "\2\3") +
                     Frame(0x01, 0, "52O1") + Frame(0x01, 0, "520199") + Frame(0x11, 3);
  Coder whole("?????", true);
  const Bytes expected = whole.Take(line);
  EXPECT_EQ(whole.Item(0x11, 3), Bytes(raw.begin() + 3, raw.end() - 2));
  EXPECT_EQ(Bytes(expected.end() - 15, expected.end()), kAcknowledged + raw);
  for (std::size_t portion = 1; portion < line.size(); ++portion) {
    Coder coder("?????", true);
    Bytes answers;
    for (std::size_t at = 0; at < line.size(); at += portion) {
      answers =
          answers + coder.Take(std::span(line).subspan(at, std::min(portion, line.size() - at)));
    }
    EXPECT_EQ(answers, expected) << "in portions of " << portion;
  }
}

TEST(Coder, FindsTheGoodFrameInGarbage) {
  const Bytes good = Frame(0x02, 0, "1");
  struct {
    const char* name;
    Bytes sent;
    Bytes answers;
  } const cases[] = {
      {"behind garbage", Bytes{0x55, 0xFF, 0x03} + good, Refusal(9) + kAcknowledged},
      {"swallowed by a frame that broke off", Bytes{2, 1, 0, 0x35} + good,
       Refusal(6) + kAcknowledged},
      {"behind a start byte in garbage", Bytes{0x55, 2, 2, 2} + good, Refusal(9) + kAcknowledged},
      {"behind the start of an unknown command", Bytes{2, 0x60, 0x11} + good,
       Refusal(3) + kAcknowledged},
      {"behind a second start byte", Bytes{2} + good, Refusal(6) + kAcknowledged},
      {"behind another with a wrong checksum", Bytes{2, 1, 0, 0x35, 0x32, 0x30, 0x31, 3, 0} + good,
       Refusal(1) + kAcknowledged},
      {"only an ENQ", {0x55, 0x41, kEnq}, Refusal(9) + kAcknowledged},
      {"a bad frame in garbage is garbage", {0x55, 2, 2, 0, 0x31, 3, 0x33}, Refusal(9)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Coder coder("?????", true);
    Bytes answers = coder.Take(c.sent);
    answers = answers + coder.LinePause();
    EXPECT_EQ(answers, c.answers);
    EXPECT_FALSE(coder.InFrame());
  }
}

TEST(Coder, AnswersAHalfFrameAfterAPauseOnly) {
  Bytes half = Frame(0x01, 0, "5201");
  for (half.pop_back(); !half.empty(); half.pop_back()) {
    Coder coder("?????", true);
    EXPECT_EQ(coder.Take(half), Bytes());
    EXPECT_TRUE(coder.InFrame());
    EXPECT_EQ(coder.LinePause(), Refusal(6)) << half.size();
    EXPECT_EQ(coder.LinePause(), Bytes());
    EXPECT_EQ(coder.Take(kReadPi).front(), kAck) << "the next byte is a start again";
  }
  // The checksum of a body that is too short looks like an ENQ, which would be acknowledged.
  Coder coder("?????", true);
  const Bytes frame = Frame(0x11, 0, "1$");
  ASSERT_EQ(frame.back(), kEnq);
  EXPECT_EQ(coder.Take(frame), Bytes());
  EXPECT_EQ(coder.LinePause(), Refusal(6));
}

TEST(Coder, TellsARequestFromARawBody) {
  // An ID may begin with an end byte; then the checksum decides, or the silence.
  Coder coder("\3abcd", true);
  EXPECT_EQ(coder.Take(Frame(0x08, 0, "\3abcd")), kAcknowledged);
  EXPECT_EQ(coder.Take({{2, 8, 0, 3, 0x55}}), Bytes());
  EXPECT_EQ(coder.LinePause(), Refusal(1));
}

}  // namespace
}  // namespace corvalis::coder
