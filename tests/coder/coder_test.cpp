// The Coder's side of the line: what it takes, what it keeps and why it refuses.

#include "coder/coder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "coder/frames.h"

namespace corvalis::coder {
namespace {

const Bytes kReadPi = Frame(0x01, 0);

std::string Times(int count, std::string_view text) {
  std::string all;
  for (; count > 0; --count) all += text;
  return all;
}

// What the Coder answers to bytes and the pause behind them.
Bytes Taken(Coder& coder, const Bytes& bytes) {
  const Bytes at_once = coder.Take(bytes);
  return at_once + coder.LinePause();
}

TEST(Coder, KeepsEveryItemAndReadsItBackWithinItsNumbersOnceAddressed) {
  const std::string raw = {"\2\3\5\6\x15\0\xFFz", 8};
  struct {
    const char* name;
    Bytes write;
    Bytes request;
    Bytes beyond;  // a request for an item that there is not
  } const cases[] = {
      {"PI", {2, 1, 0, 0x44, 0x32, 0x30, 0x41, 3, 0x07}, {2, 1, 0, 3, 0x00}, Frame(1, 1)},
      {"TP", {2, 2, 0, 0x31, 3, 0x32}, {2, 2, 0, 3, 0x03}, Frame(2, 1)},
      {"PSN", Frame(3, 49, "99" + raw), Frame(3, 49), Frame(3, 50)},
      {"DI", {2, 4, 0, 0x46, 3, 0x43}, {2, 4, 0, 3, 0x05}, Frame(4, 1)},
      {"AF", Frame(5, 99, "F9" + Times(25, "0A")), Frame(5, 99), Frame(5, 100)},
      {"PIN", Frame(6, 254, "01017B6D"), Frame(6, 254, "0"), Frame(6, 255, "0")},
      {"RT", Frame(7, 49, "05" + Times(8, raw)), Frame(7, 49), Frame(7, 50)},
      {"Enable", Frame(9, 31, "0163"), {2, 9, 31, 3, 0x17}, Frame(9, 32)},
      {"Enable of 0A", Frame(9, 0, "0000"), Frame(9, 0), Frame(9, 32)},
      {"PTY", Frame(0x0D, 0, "1F"), {2, 0x0D, 0, 3, 0x0C}, Frame(0x0D, 1)},
      {"TA", Frame(0x0E, 0, "1"), {2, 0x0E, 0, 3, 0x0F}, Frame(0x0E, 1)},
      {"M/S", Frame(0x0F, 0, "0"), {2, 0x0F, 0, 3, 0x0E}, Frame(0x0F, 1)},
      {"CT", Frame(0x10, 0, "28022920000080900"), {2, 0x10, 0, 3, 0x11}, Frame(0x10, 1)},
      {"TDC", Frame(0x11, 130, "1" + raw), {2, 0x11, 130, 3, 0x92}, Frame(0x11, 131)},
      {"IH", Frame(0x12, 15, "00D" + Times(16, raw)), Frame(0x12, 15, "00D"),
       Frame(0x12, 16, "00D")},
      {"IH of a page", Frame(0x12, 0, "000" + Times(128, "x")), Frame(0x12, 0, "000"),
       Frame(0x12, 0, "00E")},
      {"IH end", Frame(0x12, 1, "00D0007"), Frame(0x12, 0, "00D    "), Frame(0x12, 0, "00E    ")},
      {"EON", Frame(0x16, 9, raw + "10" + Times(34, "F") + "1"), Frame(0x16, 9), Frame(0x16, 10)},
      {"PTYN", Frame(0x17, 31, raw), Frame(0x17, 31), Frame(0x17, 32)},
      {"EON TA", Frame(0x18, 9, "1"), Frame(0x18, 9), Frame(0x18, 10)},
      {"ECC", Frame(0x19, 0, "AF"), {2, 0x19, 0, 3, 0x18}, Frame(0x19, 1)},
      {"LIC", Frame(0x1A, 0, "0F"), {2, 0x1A, 0, 3, 0x1B}, Frame(0x1A, 1)},
      {"LI", Frame(0x1B, 0, "101501"), {2, 0x1B, 0, 3, 0x1A}, Frame(0x1B, 1)},
      {"PSN page",
       Frame(0x1C, 49, "905" + raw),
       {2, 0x1C, 49, 0x39, 3, 0x15},
       Frame(0x1C, 50, "9")},
      {"PSN page of a page", Frame(0x1C, 0, "100" + raw), Frame(0x1C, 0, "1"), Frame(0x1C, 0, ":")},
      {"PSN active page", Frame(0x1D, 0, "9"), Frame(0x1D, 0), Frame(0x1D, 1)},
      {"PSN plan", Frame(0x1F, 19, "12359290200100000110"), Frame(0x1F, 19), Frame(0x1F, 20)},
      {"TMC system", Frame(0x21, 0, "3F3F1010"), Frame(0x21, 0), Frame(0x21, 1)},
      {"TMC", Frame(0x22, 9, "7FFFFFF1707F"), Frame(0x22, 9), Frame(0x22, 10)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Coder coder;
    EXPECT_EQ(Taken(coder, c.write), Refusal(8));
    EXPECT_EQ(Taken(coder, c.request), Refusal(8));
    EXPECT_EQ(coder.Take(Frame(0x08, 0, "?????")), kAcknowledged);
    const Bytes factory = coder.Take(c.request);
    EXPECT_NE(factory, kAcknowledged + c.write);
    EXPECT_EQ(coder.Take({factory.begin() + 1, factory.end()}), kAcknowledged);
    EXPECT_EQ(coder.Take(c.request), factory);
    EXPECT_EQ(coder.Take(c.write), kAcknowledged);
    if (c.name == std::string("IH") || c.name == std::string("IH of a page")) {
      EXPECT_EQ(coder.Take(Frame(0x12, 1, "0010007")), kAcknowledged) << "another page's end";
      EXPECT_EQ(coder.Take(c.request), factory) << "until the end of its own";
      const std::string page(c.write.begin() + 3, c.write.begin() + 6);
      EXPECT_EQ(coder.Take(Frame(0x12, 1, page + "0007")), kAcknowledged);
    }
    EXPECT_EQ(coder.Take(c.request), kAcknowledged + c.write);
    EXPECT_EQ(coder.Take(c.beyond), Refusal(2));
    EXPECT_FALSE(coder.InFrame());
  }
}

TEST(Coder, TellsItsSizesUnaddressedAndCanBeGivenOthers) {
  struct {
    std::uint8_t code;
    int Counts::*count;
    const char* usual;
    int other;
    const char* answer;
  } const cases[] = {
      {0x0A, &Counts::rt, "32", 255, "FF"},  {0x0B, &Counts::pin, "FF", 10, "0A"},
      {0x0C, &Counts::af, "64", 1, "01"},    {0x13, &Counts::ih, "00E", 300, "12C"},
      {0x14, &Counts::psn, "32", 1, "01"},   {0x15, &Counts::eon, "0A", 3, "03"},
      {0x1E, &Counts::page, "A", 15, "F"},   {0x20, &Counts::plan, "14", 0, "00"},
      {0x23, &Counts::tmc, "0A", 200, "C8"},
  };
  for (const auto& c : cases) {
    Coder coder;
    EXPECT_EQ(coder.Take(Frame(c.code, 0)), kAcknowledged + Frame(c.code, 0, c.usual));
    Counts other;
    other.*c.count = c.other;
    coder.SetSizes(other);
    EXPECT_EQ(coder.Take(Frame(c.code, 0)), kAcknowledged + Frame(c.code, 0, c.answer));
  }
  Coder coder;
  ASSERT_TRUE(coder.SetItem(0x03, 9, Text("05LAST    ")));
  ASSERT_TRUE(coder.SetItem(0x03, 8, Text("05LAST BUT")));
  coder.SetSizes({.psn = 9});
  EXPECT_EQ(coder.Item(0x03, 8), Text("05LAST BUT"));
  EXPECT_EQ(coder.Item(0x03, 9), std::nullopt);
  coder.SetSizes({});
  EXPECT_EQ(coder.Item(0x03, 9), Text("00        ")) << "forgotten";
  EXPECT_FALSE(coder.SetItem(0x14, 0, Text("32"))) << "a count is not written";
}

TEST(Coder, KeepsItemsByTheirWholeNumbers) {
  Coder coder("?????", true, {.pin = 0x123, .ih = 0x101});
  const std::string page = Times(128, "x");
  EXPECT_EQ(coder.Take(Frame(0x06, 0x22, "10007B6D") + Frame(0x1C, 3, "205TWO     ") +
                       Frame(0x12, 3, "100" + page) + Frame(0x12, 1, "1000009")),
            Bytes(4, kAck));
  EXPECT_EQ(coder.Item(0x06, 0x122), Text("10007B6D"));
  EXPECT_EQ(coder.Item(0x06, 0x22), Text("00000000"));
  EXPECT_EQ(coder.Take(Frame(0x06, 0x23, "1")), Refusal(2));
  EXPECT_EQ(coder.Item(0x1C, 2 * 256 + 3), Text("205TWO     "));
  EXPECT_EQ(coder.Item(0x12, 0x100 * 256 + 3), Text("100" + page));
  EXPECT_EQ(coder.Item(0x12, 0x100 * 256 + 16), Text("1000009"));
  EXPECT_EQ(coder.Item(0x12, 17), std::nullopt);
}

TEST(Coder, KeepsAnotherNetworksTaInItsList) {
  Coder coder("?????", true);
  const std::string list = "NETWORK 10" + Times(34, "0") + "1";
  EXPECT_EQ(coder.Take(Frame(0x16, 2, list) + Frame(0x18, 2, "1")), Bytes(2, kAck));
  EXPECT_EQ(coder.Item(0x16, 2), Text("NETWORK 11" + list.substr(10)));
}

TEST(Coder, TakesWhatIsOddAndAllowed) {
  struct {
    const char* name;
    Bytes write;
  } const cases[] = {
      {"AF of fillers alone", Frame(0x05, 1, Times(26, "CD"))},
      {"AF with an empty list", Frame(0x05, 1, "E0" + Times(25, "CD"))},
      {"PIN with a type of two digits apart", Frame(0x06, 1, "00010000")},
      {"plan of zeros with a page that is none", Frame(0x1F, 0, "0000000000000000001A")},
      {"plan without a day but a month and a year", Frame(0x1F, 0, "00000001399000000000")},
      {"plan of a past century", Frame(0x1F, 0, "00000290296000000000")},
      {"EON with a type past 31", Frame(0x16, 0, "        0031" + Times(33, "0"))},
  };
  Coder coder("?????", true);
  for (const auto& c : cases) EXPECT_EQ(coder.Take(c.write), kAcknowledged) << c.name;
}

TEST(Coder, RefusesByNumber) {
  struct {
    const char* name;
    Bytes sent;
    int error;
  } const cases[] = {
      {"wrong checksum of a write", {2, 1, 0, 0x44, 0x32, 0x30, 0x41, 3, 0x08}, 1},
      {"wrong checksum of a request", {2, 4, 0, 3, 0x06}, 1},
      {"wrong checksum of an in-house page's end",
       {2, 0x12, 1, 48, 48, 48, 48, 48, 48, 57, 3, 0},
       1},
      {"Enable past the table", Frame(0x09, 32, "0101"), 2},
      {"an active page that is none", Frame(0x1D, 0, ":"), 2},
      {"neither writing nor reading the end of a page", Frame(0x12, 2, "0000007"), 2},
      {"Address that is neither old nor new", Frame(0x08, 2, "?????"), 2},
      {"unknown code", Frame(0x24, 0, "12345"), 3},
      {"end byte late", Frame(0x01, 0, "52011"), 6},
      {"reading the address", Frame(0x08, 0), 7},
      {"digits in the request for the end of a page", Frame(0x12, 0, "0000007"), 7},
      {"a request for a page without digits", Frame(0x12, 0, "00e"), 7},
      {"garbage", {0x55}, 9},
      {"writing a count", Frame(0x14, 0, "32"), 10},
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
      {"a rotation of 100 in two digits", Frame(0x03, 0, ":0NAME    "), 10},
      {"a page's rotation of 100", Frame(0x1C, 0, "0:0NAME    "), 10},
      {"AF with more than 25 entries", Frame(0x05, 0, "FA" + Times(25, "01")), 10},
      {"AF with a filler for its count", Frame(0x05, 0, "CD" + Times(25, "01")), 10},
      {"AF with a lower-case code", Frame(0x05, 0, "E1" + Times(25, "0a")), 10},
      {"PIN with a flag for its number", Frame(0x06, 0, "0\0020000FF"), 10},
      {"plan at 24 o'clock", Frame(0x1F, 0, "12400000000000000000"), 10},
      {"plan on 31 April", Frame(0x1F, 0, "10000310426000000000"), 10},
      {"EON without its last flag", Frame(0x16, 0, "        00" + Times(34, "0") + " "), 10},
      {"TMC system with a table past 63", Frame(0x21, 0, "40000000"), 10},
      {"TMC with an event past 2047", Frame(0x22, 0, "800000000000"), 10},
      {"a blank end of a page", Frame(0x12, 1, "000    "), 10},
      {"another Coder's address", Frame(0x08, 0, "other"), 11},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Coder coder("?????", true);
    const auto before = coder.Item(0x01);
    EXPECT_EQ(Taken(coder, c.sent), Refusal(c.error));
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
                     Frame(0x12, 1, "0000007") + Frame(0x12, 0, "000    ") +
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
      {"cut short, whole in front", Frame(0x10, 0, "26") + Bytes{0x31, 0x32}, Refusal(6)},
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

TEST(Coder, TellsAShortFrameFromARawBody) {
  // An end byte stands where a shorter frame has it; then the checksum decides, or the silence.
  const std::string text = "\3xxx\3xxxxx\3";
  struct {
    const char* name;
    Bytes write;
  } const cases[] = {
      {"EON", Frame(0x16, 0, text.substr(0, 8) + Times(37, "0"))},
      {"PTYN", Frame(0x17, 0, text.substr(0, 8))},
      {"IH", Frame(0x12, 0, "000" + text + Times(117, "\3"))},
      {"Address", Frame(0x08, 0, "\3abcd")},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Coder coder("\3abcd", true);
    for (const std::uint8_t byte : Bytes(c.write.begin(), c.write.end() - 1)) {
      EXPECT_EQ(coder.Take({&byte, 1}), Bytes());
    }
    EXPECT_EQ(coder.Take({&c.write.back(), 1}), kAcknowledged);
    // Whatever is missing of it, it is refused once, and the line is free again.
    for (std::size_t length = 1; length < c.write.size(); ++length) {
      const Bytes cut(c.write.begin(), c.write.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_EQ(Taken(coder, cut).size(), Refusal(1).size()) << length;
    }
    EXPECT_EQ(coder.Take(c.write), kAcknowledged);
  }
}

}  // namespace
}  // namespace corvalis::coder
