// One frame, its acknowledgement and its answer, and the waits for them.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>
#include <utility>

#include "config/config_data.h"
#include "link/engine_fixture.h"
#include "link/transfer.h"

namespace corvalis::test {
namespace {

TEST_F(EngineTest, OpensThePortInThisOrderAndStopsAtTheFirstError) {
  Start("[Serial Setup]\nSerialPort=3\nBaudrate=4800\nParity=E\nStopBit=1\nSatellite=Off\n");
  std::vector<std::string> road{"CommPort 3",  "PortOpen on",  "Settings 4800,E,8,1", "InputLen 0",
                                "InputMode 1", "RThreshold 1", "RTSEnable on"};
  Open();
  EXPECT_EQ(port.operations, road);
  port.Receive({'x'});
  configData->SetSatellite(true);
  road.insert(road.begin(), "PortOpen off");
  road[6] = "RThreshold 0";  // no receive events at all
  for (std::size_t done = 1; done <= road.size(); ++done) {
    port.operations.clear();
    port.refused = done < road.size() ? road[done] : "";
    Open();
    EXPECT_EQ(LinkOpen, done == road.size());
    EXPECT_EQ(dialogs.boxes.size(), std::min(done, road.size() - 1));
    EXPECT_EQ(port.operations,
              std::vector(road.begin(),
                          road.begin() + static_cast<int>(std::min(done + 1, road.size()))));
    EXPECT_TRUE(ReceiveQueue()->QEmpty());
    port.SetPortOpen(true);
  }
}

TEST_F(EngineTest, ClosedLinkIsNotWrittenTo) {
  StartLocal();
  LinkOpen = false;
  Frame frame = Frame::Write(CommandCode::kTp);
  TransferFrame(frame.Bytes());
  EXPECT_EQ(LinkError, kErrorUnconnected);
  EXPECT_EQ(frame.Bytes().back(), 0);  // nor is the checksum made
  EXPECT_TRUE(port.written.empty());
  LinkError = kLinkOk;
  ReceiveFrame(frame.Bytes());
  EXPECT_EQ(LinkError, kErrorUnconnected);
  ReleaseLink();
  EXPECT_EQ(ReceiveQueue(), nullptr);
}

TEST_F(EngineTest, WhatCameBeforeAFrameIsNoAnswerToIt) {
  StartLocal();
  port.Receive({kNak});
  port.Receive({kNak}, /*event=*/1);  // left in the port
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
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

TEST_F(EngineTest, RunEndsAtTheFirstItemThatFails) {
  StartLocal();
  LinkError = kErrorTxTimeout;  // of something before
  port.answer = [this](const Bytes&) { return port.written.size() < 3 ? Bytes{kAck} : Refusal(2); };
  RunItems(5, [this](int) { WriteTp(); });
  EXPECT_EQ(port.written.size(), 3U);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(EngineTest, BytesThatComeUnaskedEndNoRun) {
  StartLocal();
  int items = 0;
  RunItems(3, [&](int /*number*/) {
    ++items;
    time.After(0, [this] { port.Receive(Bytes(Queue::kCapacity + 1)); });
  });
  EXPECT_EQ(items, 3);
  EXPECT_EQ(LinkError, kLinkOk);
}

TEST_F(EngineTest, OneWayPathWaitsForNothing) {
  Start(kSatellite);
  Open();
  port.answer = [](const Bytes&) { return Bytes{kNak}; };
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_EQ(time.Elapsed(), 0);
  port.written.clear();
  RunItems(5, [this](int number) {
    WriteTp();
    if (number == 1) time.After(0, [] { EscPressed = true; });
  });
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_EQ(port.written.size(), 3U);  // the frame at hand is out
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(EngineTest, FifteenSecondsAreForTheWholeAnswer) {
  StartLocal();
  port.answer = [&](const Bytes&) {
    const Bytes answer = Sealed({2, 2, 0, '1', 3});
    for (std::size_t i = 0; i < answer.size() && port.written.size() == 1; ++i) {
      time.After(0.1 + static_cast<double>(i) * 3.1, [this, b = answer[i]] { port.Receive({b}); });
    }
    return port.written.size() == 1 ? Bytes{kAck} : Acknowledged(answer);
  };
  EXPECT_TRUE(ReadTp());
  EXPECT_EQ(port.written.size(), 2U);
}

TEST_F(EngineTest, EscEndsEachWaitSilently) {
  StartLocal();
  struct Case {
    const char* wait;
    Bytes answer;
    bool read;
    double seconds;  // after the ESC at 3 s
    int error;
  };
  // An abort within an error frame is a failed refusal, and that is reported.
  const Case cases[] = {{"acknowledgement", {}, false, 0.2, kErrorAborted},
                        {"error frame", {kNak, 2}, false, 0, kErrorNotAcknowledged},
                        {"answer", {kAck, 2, 2}, true, 0, kErrorAborted}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.wait);
    port.written.clear();
    dialogs.boxes.clear();
    port.answer = [&c](const Bytes&) { return c.answer; };
    const double begin = time.Elapsed();
    time.After(3, [] { EscPressed = true; });
    c.read ? static_cast<void>(ReadTp()) : WriteTp();
    EXPECT_EQ(LinkError, c.error);
    EXPECT_EQ(dialogs.boxes.empty(), c.error == kErrorAborted);
    EXPECT_FALSE(EscPressed);
    EXPECT_EQ(port.written.size(), 1U);
    EXPECT_NEAR(time.Elapsed() - begin, 3 + c.seconds, 0.001);
  }
}

TEST_F(EngineTest, OnlyABadStartOrEndEmptiesTheQueue) {
  StartLocal();
  const std::tuple<Bytes, int, bool> cases[] = {
      {Sealed({2, 2, 0, '1', 3}), kLinkOk, false},
      {Sealed({2, 0x0E, 7, '1', 3}), kLinkOk, false},  // of another command of the same length
      {{2, 2, 0, '1', 3, 0}, kErrorRxChecksum, false},
      {Sealed({1, 2, 0, '1', 3}), kErrorRxStart, true},
      {Sealed({2, 2, 0, '1', 4}), kErrorRxLength, true}};
  for (const auto& [answer, error, emptied] : cases) {
    Bytes bytes = Acknowledged(answer);
    bytes.push_back('x');  // one too many
    port.answer = [&bytes](const Bytes&) { return bytes; };
    EXPECT_EQ(ReadTp(), error == kLinkOk);
    EXPECT_EQ(LinkError, error);
    EXPECT_EQ(ReceiveQueue()->QEmpty(), emptied) << error;
  }
}

TEST_F(EngineTest, AWriteThatFailsLeavesTheErrorUnlessThePortIsClosed) {
  StartLocal();
  for (const auto& [number, error] :
       {std::pair(8099, kErrorRxCode), {kPortNotOpen, kErrorUnconnected}}) {
    LinkError = kErrorRxCode;
    port.output_error = {.number = number, .description = "Input/output error"};
    std::array<std::uint8_t, 1> enq{kEnq};
    TransferFrame(enq);
    EXPECT_EQ(LinkError, error) << number;
  }
}

TEST_F(EngineTest, EnqDropsTheAddressingEvenIfItFails) {
  StartLocal();
  port.answer = [](const Bytes&) { return Refusal(7); };
  AddressSent = true;
  SendEnq();
  EXPECT_EQ(BoxText(), "ENQ: [RDS] read mode not allowed");
  EXPECT_FALSE(AddressSent);
}

TEST_F(EngineTest, FullQueueLosesTheRestAndTheNextTransferForgetsIt) {
  StartLocal();
  Bytes noise(Queue::kCapacity);
  std::iota(noise.begin(), noise.end(), std::uint8_t{0});
  port.Receive(noise);
  EXPECT_EQ(LinkError, kLinkOk);
  port.Receive({'y', 'z'});
  EXPECT_EQ(LinkError, kErrorUnmanaged);
  Bytes kept;
  while (!ReceiveQueue()->QEmpty()) kept.push_back(ReceiveQueue()->QPop());
  EXPECT_EQ(kept, noise);
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
}

}  // namespace
}  // namespace corvalis::test
