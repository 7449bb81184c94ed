// One frame, its acknowledgement and its answer, and the waits for them.

#include <gtest/gtest.h>

#include <array>
#include <tuple>
#include <utility>

#include "link/engine_fixture.h"

namespace corvalis::test {
namespace {

TEST_F(EngineTest, ChecksumMakesTheXorOfAFrameZero) {
  StartLocal();
  WriteTp();
  ASSERT_EQ(port.written.size(), 1U);
  EXPECT_EQ(port.written[0].size(), 6U);
  EXPECT_EQ(FrameChecksum(port.written[0]), 0);
}

TEST_F(EngineTest, AnswerOfAnotherCommandOfTheSameLengthPasses) {
  StartLocal();
  port.answer = [](const Bytes&) {
    Bytes bytes = Sealed({2, 0x0E, 7, '1', 3});
    bytes.insert(bytes.begin(), kAck);
    return bytes;
  };
  EXPECT_TRUE(ReadTp());
}

TEST_F(EngineTest, ShortFormOfAPagePassesTheCheck) {
  StartLocal();
  for (const auto& [size, error] : {std::pair{12, 0}, {136, 0}, {13, 21}}) {
    LinkError = kLinkOk;
    Bytes frame(static_cast<std::size_t>(size));
    frame[1] = 0x12;
    CheckFrame(frame);
    EXPECT_EQ(LinkError, error) << size;
  }
}

TEST_F(EngineTest, ReadThatTimesOutThreeTimesAsksThreeTimes) {
  StartLocal();
  port.answer = [](const Bytes&) { return Bytes{kAck}; };
  EXPECT_FALSE(ReadTp());
  EXPECT_EQ(port.written, std::vector<Bytes>(3, Sealed({2, 2, 0, 3})));
  EXPECT_NEAR(time.Elapsed(), 45, 0.001);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(EngineTest, SecondAttemptMaySucceed) {
  StartLocal();
  int asked = 0;
  port.answer = [&](const Bytes&) {
    Bytes bytes{kAck};
    if (++asked == 2) {
      for (const std::uint8_t byte : Sealed({2, 2, 0, '1', 3})) bytes.push_back(byte);
    }
    return bytes;
  };
  EXPECT_TRUE(ReadTp());
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(EngineTest, MissingAcknowledgementOfAReadIsNotRetried) {
  StartLocal();
  port.answer = [](const Bytes&) { return Bytes{}; };
  EXPECT_FALSE(ReadTp());
  EXPECT_EQ(port.written.size(), 1U);
  EXPECT_EQ(LinkError, kErrorTxTimeout);
}

TEST_F(EngineTest, FifteenSecondsAreForTheWholeAnswer) {
  StartLocal();
  port.answer = [&](const Bytes&) {
    if (port.written.size() > 1) return Bytes{kAck};
    const Bytes answer = Sealed({2, 2, 0, '1', 3});
    for (std::size_t i = 0; i < answer.size(); ++i) {
      time.After(0.1 + static_cast<double>(i) * 3.1,
                 [this, byte = answer[i]] { port.Receive({byte}); });
    }
    return Bytes{kAck};
  };
  EXPECT_FALSE(ReadTp());
  EXPECT_EQ(LinkError, kErrorRxTimeout);
}

TEST_F(EngineTest, EscEndsEachWaitSilently) {
  StartLocal();
  struct Case {
    const char* wait;
    Bytes answer;
    bool read;
    double seconds;  // after the ESC at 3 s
  };
  const Case cases[] = {{"acknowledgement", {}, false, 0.2},
                        {"error frame", {kNak, 2}, false, 0},
                        {"answer", {kAck, 2, 2}, true, 0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.wait);
    port.written.clear();
    dialogs.boxes.clear();
    port.answer = [&c](const Bytes&) { return c.answer; };
    const double begin = time.Elapsed();
    time.After(3, [] { EscPressed = true; });
    c.read ? static_cast<void>(ReadTp()) : WriteTp();
    // An abort within an error frame is a failed refusal, and that is reported.
    const bool in_error_frame = c.answer.size() > 1 && c.answer[0] == kNak;
    EXPECT_EQ(LinkError, in_error_frame ? kErrorNotAcknowledged : kErrorAborted);
    EXPECT_EQ(dialogs.boxes.empty(), !in_error_frame);
    EXPECT_FALSE(EscPressed);
    EXPECT_EQ(port.written.size(), 1U);
    EXPECT_NEAR(time.Elapsed() - begin, 3 + c.seconds, 0.001);
  }
}

TEST_F(EngineTest, AnswerThatCameBeforeTheEscCounts) {
  StartLocal();
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.After(3, [this] {
    EscPressed = true;
    port.Receive({kAck});
  });
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_TRUE(EscPressed);  // the next frame goes out and is aborted
}

TEST_F(EngineTest, OnlyABadStartOrEndEmptiesTheQueue) {
  StartLocal();
  const std::tuple<Bytes, int, bool> cases[] = {{Sealed({2, 2, 0, '1', 3}), kLinkOk, false},
                                                {{2, 2, 0, '1', 3, 0}, kErrorRxChecksum, false},
                                                {Sealed({1, 2, 0, '1', 3}), kErrorRxStart, true},
                                                {Sealed({2, 2, 0, '1', 4}), kErrorRxLength, true}};
  for (const auto& [answer, error, emptied] : cases) {
    port.answer = [&reply = answer](const Bytes&) {
      Bytes bytes = reply;
      bytes.insert(bytes.begin(), kAck);
      bytes.push_back('x');  // one too many
      return bytes;
    };
    ReadTp();
    EXPECT_EQ(LinkError, error);
    EXPECT_EQ(ReceiveQueue()->QEmpty(), emptied) << error;
  }
}

TEST_F(EngineTest, EscLeftFromBeforeAbortsTheNextTransferAtItsFirstWait) {
  StartLocal();
  port.answer = [](const Bytes&) { return Bytes{}; };
  EscPressed = true;
  WriteTp();
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_NEAR(time.Elapsed(), 0.2, 0.001);
}

TEST_F(EngineTest, OneWayPathWaitsForNothing) {
  Start(kSatellite);
  Open();
  port.answer = [](const Bytes&) { return Bytes{kNak}; };
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_EQ(time.Elapsed(), 0);
  EXPECT_TRUE(ReceiveQueue()->QEmpty());  // no receive events at all

  port.Wrote = [] { EscPressed = true; };
  WriteTp();
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_EQ(port.written.size(), 2U);  // the frame at hand is out
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(EngineTest, WaitAcrossMidnightEndsByAnAnswerOrByEscOnly) {
  StartLocal();
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.SetTimer(86400 - 5);
  time.After(600, [this] { port.Receive({kAck}); });
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_GE(time.Elapsed(), 600);

  time.SetTimer(86400 - 5);
  time.After(700, [] { EscPressed = true; });
  WriteTp();
  EXPECT_EQ(LinkError, kErrorAborted);

  port.answer = [](const Bytes&) { return Bytes{kAck}; };
  time.SetTimer(86400 - 5);
  time.After(800, [this] { port.Receive(Sealed({2, 2, 0, '1', 3})); });
  EXPECT_TRUE(ReadTp());
  EXPECT_GE(time.Elapsed(), 800);

  // The same silence ends by itself on any other hour.
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.SetTimer(100);
  WriteTp();
  EXPECT_EQ(LinkError, kErrorTxTimeout);
}

TEST_F(EngineTest, PauseAcrossMidnightEndsByEscOnly) {
  StartLocal();
  time.SetTimer(86400 - 0.1);
  time.After(300, [] {});
  time.After(600, [] { EscPressed = true; });
  WaitSeconds(0.2F);
  EXPECT_NEAR(time.Elapsed(), 600, 0.001);
  EXPECT_TRUE(EscPressed);  // for the transfer that comes next

  // The pause of an abort has its ESC already; it ends at the next event after its time.
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.SetTimer(86400 - 0.1);
  for (const double tick : {0.05, 0.15, 0.25}) time.After(tick, [] {});
  WriteTp();
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_NEAR(time.Elapsed(), 0.25, 0.001);
}

TEST_F(EngineTest, ClosedLinkWritesNothing) {
  StartLocal();
  LinkOpen = false;
  std::array<std::uint8_t, 6> frame{2, 2, 0, '1', 3, 0x55};
  TransferFrame(frame);
  EXPECT_EQ(LinkError, kErrorUnconnected);
  EXPECT_EQ(frame[5], 0x55);
  LinkError = kLinkOk;
  ReceiveFrame(frame);
  EXPECT_EQ(LinkError, kErrorUnconnected);
  EXPECT_TRUE(port.written.empty());
}

TEST_F(EngineTest, TableIsFilledByTheFirstOpening) {
  CommandTableBuilt = false;
  StartLocal();
  EXPECT_TRUE(CommandTableBuilt);
  for (int row = 1; row <= kCommands; ++row) EXPECT_EQ(CommandRow(row).code, row);
  EXPECT_EQ(FrameSize(CommandCode::kIh), 136U);
  EXPECT_THROW(static_cast<void>(CommandRow(36)), std::out_of_range);
}

TEST_F(EngineTest, OpeningShowsTheSystemsWords) {
  Start(kLocal);
  port.missing[1] = "No such file or directory";
  Open();
  EXPECT_FALSE(LinkOpen);
  EXPECT_EQ(BoxText(), "No such file or directory");
  EXPECT_EQ(dialogs.boxes[0].title, "Serial Management");
  // A scan, and a caller that wants none, show no box.
  AutoSettingActive = true;
  Open();
  AutoSettingActive = false;
  OpenLink(port, /*show_errors=*/false);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(EngineTest, EnqIsOneByteAndDropsTheAddressing) {
  StartLocal();
  AddressSent = true;
  SendEnq();
  EXPECT_EQ(port.written, std::vector<Bytes>{{kEnq}});
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_FALSE(AddressSent);

  port.answer = [](const Bytes&) { return Refusal(7); };
  AddressSent = true;
  SendEnq();
  EXPECT_EQ(BoxText(), "ENQ: [RDS] read mode not allowed");
  EXPECT_FALSE(AddressSent);
  AutoSettingActive = true;
  SendEnq();
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(EngineTest, OnCommTakesReceiveEventsAlone) {
  StartLocal();
  port.Receive({1, 2}, /*event=*/1);
  EXPECT_TRUE(ReceiveQueue()->QEmpty());
  EXPECT_EQ(port.InBufferCount(), 2);
  port.Receive({3});
  EXPECT_EQ(ReceiveQueue()->QPop(), 1);
  EXPECT_EQ(port.InBufferCount(), 0);
}

TEST_F(EngineTest, FullQueueLosesTheRestAndTheNextTransferForgetsIt) {
  StartLocal();
  port.Receive(Bytes(Queue::kCapacity, 'x'));
  EXPECT_TRUE(ReceiveQueue()->QFull());
  EXPECT_EQ(LinkError, kLinkOk);
  port.Receive({'y', 'z'});
  EXPECT_EQ(LinkError, kErrorUnmanaged);
  EXPECT_EQ(port.InBufferCount(), 0);
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
}

}  // namespace
}  // namespace corvalis::test
