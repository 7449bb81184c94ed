// The line that the service shares with the desktop: where an exchange ends, and whose turn it is.

#include "send/shared_line.h"

#include "send/send_fixture.h"

namespace corvalis::test {
namespace {

Bytes WithChecksum(Bytes frame) {
  frame.push_back(FrameChecksum(frame));
  return frame;
}

TEST(ExchangeTest, FindsWhatIsWrittenInOneGo) {
  const Bytes request = WithChecksum({kStart, 0x07, 1, kEnd});
  Bytes text(FrameSize(CommandCode::kRt) - 1, kEnd);
  text[0] = kStart;
  text[kCommandOffset] = 0x07;
  text = WithChecksum(text);
  Bytes two = request;
  two.push_back(kEnq);
  Bytes torn = text;
  torn.pop_back();
  const std::pair<Bytes, std::size_t> cases[] = {
      {two, 5},
      {text, 71},
      {torn, 0},
      {{'A', 'T', kEnq}, 2},
      {WithChecksum({kStart, 0x1C, 2, '1', kEnd}), 6},            // a page asks with its number
      {WithChecksum({kStart, 0x12, 0, '0', '0', '1', kEnd}), 8},  // so does a block of a page
      {WithChecksum({kStart, 0x44, 0, 'x', kEnd}), 6},            // an unknown command
  };
  for (const auto& [bytes, piece] : cases) EXPECT_EQ(send::FirstPiece(bytes), piece);
}

TEST(ExchangeTest, IsOverWhereTheGrammarOrSilenceSaysSo) {
  const Bytes request = WithChecksum({kStart, 0x0E, 0, kEnd});
  const Bytes write = WithChecksum({kStart, 0x0E, 0, '1', kEnd});
  const Bytes marker = WithChecksum({kStart, 0x12, 0, '0', '0', '1', '0', '0', '0', '0', kEnd});
  const Bytes end = WithChecksum({kStart, 0x12, 1, '0', '0', '1', '0', '0', '0', '0', kEnd});
  const struct {
    Bytes piece;
    Bytes answer;
    double over;  // 0: with the answer; else at these seconds behind it
  } cases[] = {
      {{kEnq}, {kAck}, 0},
      {{kEnq}, {}, 15},
      {write, {kAck}, 0},
      {write, {kNak, kStart, 0, 8, kEnd, 9}, 0},
      {write, {kNak, kStart, 0, 8, kEnd}, 15},
      {request, {kAck}, 15},
      {request, {kAck, kStart, 0x0E, 0, '0', kEnd, 0x3F}, 0},
      {write, {0x46, kAck}, 1},  // garbled
      {marker, {kAck}, 15},
      {end, {kAck}, 0},
      {{'A', 'T'}, {}, 1},
  };
  for (const auto& one : cases) {
    send::Exchange exchange;
    exchange.Begin(one.piece, 100);
    for (const std::uint8_t byte : one.answer) exchange.Take({&byte, 1}, 107);
    EXPECT_EQ(exchange.Running(), one.over > 0) << one.answer.size();
    const double last = (one.answer.empty() ? 100 : 107) + one.over;
    EXPECT_FALSE(exchange.Look(last));
    EXPECT_EQ(exchange.Look(last + 0.1), one.over > 0);
  }
}

class SharedLineTest : public SendTest {
 protected:
  void StartShared(coder::Faults faults = {}) {
    Start(kTwoWay, faults);
    owner.reset();
    shared = std::make_unique<send::SharedLine>(port);
    shared->ToDesktop = [this](std::span<const std::uint8_t> bytes) {
      heard.insert(heard.end(), bytes.begin(), bytes.end());
    };
    owner = std::make_unique<send::LineOwner>(*shared);
    machine.port = owner.get();
    sender = std::make_unique<send::Sender>(*station, *owner, kept, false);
  }
  void Settle() {
    for (int i = 0; i < 4; ++i) time.RunUntil(time.Steady() + 1);
  }
  // The desktop writes and takes what has come when the line is silent again.
  Bytes Desktop(const Bytes& bytes) {
    heard.clear();
    shared->TakeFromDesktop(bytes);
    Settle();
    return heard;
  }
  std::string Written() {
    std::string codes;
    for (const Bytes& one : std::exchange(port.written, {})) {
      codes += one == kEnqAlone ? "ENQ " : std::to_string(one[kCommandOffset]) + " ";
    }
    return codes;
  }
  ~SharedLineTest() override { owner.reset(); }

  std::unique_ptr<send::SharedLine> shared;
  Bytes heard;
  const Bytes ta_on = FrameOf(CommandCode::kTa, 0, "1");
  const Bytes not_addressed = {kNak, kStart, 0, 8, kEnd, kStart ^ 8 ^ kEnd};
};

TEST_F(SharedLineTest, EachSideFindsTheCoderInTheAddressingThatItBelievesIn) {
  StartShared();
  ASSERT_EQ(Send("rt 1 x").words, "");
  EXPECT_EQ(Written(), "ENQ 8 7 ");
  // A side that has said nothing yet, then one whose ENQ has dropped the address.
  EXPECT_EQ(Desktop(ta_on), Bytes{kAck});
  EXPECT_EQ(Desktop(kEnqAlone), Bytes{kAck});
  EXPECT_EQ(Desktop(ta_on), not_addressed);
  EXPECT_EQ(Written(), "14 ENQ 14 ");
  ASSERT_EQ(Send("rt 1 y").words, "");
  EXPECT_EQ(Desktop(ta_on), not_addressed);
  EXPECT_EQ(Written(), "8 7 ENQ 14 ");
  // The same address on both sides costs nothing; another one is refused and drops it.
  EXPECT_EQ(Desktop(Address("?????")), Bytes{kAck});
  ASSERT_EQ(Send("rt 1 z").words, "");
  EXPECT_EQ(Desktop(ta_on), Bytes{kAck});
  EXPECT_EQ(Written(), "8 7 14 ");
  Desktop(Address("other"));
  ASSERT_EQ(Send("rt 1 z").words, "");
  EXPECT_EQ(Desktop(ta_on), not_addressed);
  EXPECT_EQ(Written(), "8 8 7 ENQ 14 ");
  // A new ID leaves it addressed for both; a Coder that has lost its supply is addressed for each.
  ASSERT_EQ(Send("rt 1 x").words, "");
  Desktop(Address("?????"));
  EXPECT_EQ(Desktop(FrameOf(CommandCode::kAddress, 1, "NEWID")), Bytes{kAck});
  ASSERT_EQ(Send("rt 1 y").words, "");
  EXPECT_EQ(Written(), "8 7 8 8 7 ");
  port.answer = [this](const Bytes& /*frame*/) { return not_addressed; };
  EXPECT_EQ(Desktop(ta_on), not_addressed);
  port.answer = nullptr;
  ASSERT_EQ(Send("rt 1 x").words, "");
  EXPECT_EQ(Written(), "14 8 7 ");
}

TEST_F(SharedLineTest, BothTakeTurnsAndNobodyIsTorn) {
  StartShared({.late_ms = 100});
  Desktop(kEnqAlone);
  Desktop(Address("?????"));
  ASSERT_EQ(Send("rt 1 x").words, "");
  Written();
  // In the middle of the service's exchange a whole burst comes; each frame waits for its turn.
  heard.clear();
  port.Wrote = [this] {
    port.Wrote = nullptr;
    shared->TakeFromDesktop(ta_on);
    shared->TakeFromDesktop(ta_on);
  };
  ASSERT_EQ(Send("read ta").read, "ta off");
  ASSERT_EQ(Send("read rt 1").read, "rt 1 \"x\" --time 15");
  Settle();
  EXPECT_EQ(Written(), "14 14 7 14 ");
  EXPECT_EQ(heard, Bytes{kAck}) << "the answer to the last alone, as the first isn't waited for";
}

TEST_F(SharedLineTest, AfterSilenceOnlyWhatIsStillWaitedForGoesOut) {
  StartShared({.silent = true});
  for (const double stays : {0, 1}) {
    Desktop(kEnqAlone);  // opens the line
    time.Stall(stays * 10);
    shared->TakeFromDesktop(ta_on);
    time.Stall(16 - stays * 10);
    shared->Advance();
    EXPECT_EQ(Written(), stays == 0 ? "ENQ " : "ENQ 14 ");
    time.Stall(16);
    shared->Advance();
  }
}

}  // namespace
}  // namespace corvalis::test
