// One frame, its acknowledgement and its answer; every error of the link by a cause of its own.

#include <gtest/gtest.h>

#include "config/config_data.h"
#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

constexpr double kTimeOut = 15;

Bytes Sealed(Bytes frame) {
  frame.push_back(FrameChecksum(frame));
  return frame;
}

Bytes Refusal(std::uint8_t number) {
  Bytes bytes = Sealed({kStart, 0, number, kEnd});
  bytes.insert(bytes.begin(), kNak);
  return bytes;
}

class EngineTest : public LinkTest {
 protected:
  void StartLocal() {
    Start(kLocal);
    Open();
  }

  void WriteTp() {
    Frame frame = Frame::Write(CommandCode::kTp);
    frame.Body()[0] = '1';
    WriteToCoder(frame, "TP");
  }

  // Reads TP from whatever answers; true if the answer was decoded.
  bool ReadTp() {
    bool decoded = false;
    ReadFromCoder(Frame::Request(CommandCode::kTp), FrameSize(CommandCode::kTp), "TP",
                  [&](std::span<const std::uint8_t>) { decoded = true; });
    return decoded;
  }

  std::string BoxText() { return dialogs.boxes.empty() ? "" : dialogs.boxes.back().text; }
};

TEST_F(EngineTest, ChecksumMakesTheXorOfAFrameZero) {
  StartLocal();
  WriteTp();
  ASSERT_EQ(port.written.size(), 1U);
  EXPECT_EQ(port.written[0].size(), 6U);
  EXPECT_EQ(FrameChecksum(port.written[0]), 0);
}

struct Cause {
  const char* name;
  Bytes answer;  ///< what comes back at once; empty for nothing
  int error;
  const char* text;
  double seconds;
};

class WriteErrors : public EngineTest, public testing::WithParamInterface<Cause> {};

TEST_P(WriteErrors, IsReportedInItsWords) {
  StartLocal();
  port.answer = [](const Bytes&) { return GetParam().answer; };
  WriteTp();
  EXPECT_EQ(LinkError, GetParam().error);
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  const Box& box = dialogs.boxes[0];
  EXPECT_EQ(box.text, std::string("TP:") + GetParam().text);
  EXPECT_EQ(box.title, "Serial Management");
  EXPECT_EQ(box.style, BoxStyle::kCritical);
  EXPECT_EQ(box.help_file, "DEMO.HLP");
  EXPECT_EQ(box.help_context, 1000);
  EXPECT_NEAR(time.Elapsed(), GetParam().seconds, 0.001);
}

INSTANTIATE_TEST_SUITE_P(
    Engine, WriteErrors,
    testing::Values(
        Cause{"Checksum", Refusal(1), 1, "  [RDS] checksum was wrong  ", 0},
        Cause{"Pointer", Refusal(2), 2, " [RDS] pointer value too big", 0},
        Cause{"Code", Refusal(3), 3, "     [RDS] code unknown     ", 0},
        Cause{"Parity", Refusal(4), 4, "     [RDS] parity wrong     ", 0},
        Cause{"StopBits", Refusal(5), 5, " [RDS] stop bits were wrong ", 0},
        Cause{"Bytes", Refusal(6), 6, " [RDS] number of bytes wrong", 0},
        Cause{"ReadMode", Refusal(7), 7, " [RDS] read mode not allowed", 0},
        Cause{"Address", Refusal(8), 8, " [RDS] before send address  ", 0},
        Cause{"Start", Refusal(9), 9, " [RDS] starting code unknown", 0},
        Cause{"WriteMode", Refusal(10), 10, " [RDS]write mode not allowed", 0},
        Cause{"WrongAddress", Refusal(11), 11, "  [RDS] address was wrong   ", 0},
        Cause{"NumberBeyondTheTable", Refusal(12), -1, "       Unmanged error       ", 0},
        Cause{"NumberZero", Refusal(0), -1, "       Unmanged error       ", 0},
        Cause{"NamesACommand", {kNak, 2, 1, 5, 3, 5}, -1, "       Unmanged error       ", 0},
        Cause{"Silence", {}, 12, "   [ TX ] serial timeout    ", kTimeOut},
        Cause{"OtherByte", {0x41}, 14, "   [ TX ] not acknowledge   ", 0},
        Cause{"BadErrorFrame", {kNak, 2, 0, 5, 3, 0}, 14, "   [ TX ] not acknowledge   ", 0},
        Cause{"HalfErrorFrame", {kNak, 2, 0}, 14, "   [ TX ] not acknowledge   ", kTimeOut}),
    [](const auto& info) { return std::string(info.param.name); });

class ReadErrors : public EngineTest, public testing::WithParamInterface<Cause> {};

TEST_P(ReadErrors, IsReportedInItsWords) {
  StartLocal();
  port.answer = [](const Bytes&) {
    Bytes bytes = GetParam().answer;
    bytes.insert(bytes.begin(), kAck);
    return bytes;
  };
  EXPECT_FALSE(ReadTp());
  EXPECT_EQ(LinkError, GetParam().error);
  EXPECT_EQ(BoxText(), std::string("TP:") + GetParam().text);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_NEAR(time.Elapsed(), GetParam().seconds, 0.001);
}

INSTANTIATE_TEST_SUITE_P(
    Engine, ReadErrors,
    testing::Values(
        Cause{"NothingAtAll", {}, 15, "   [ RX ] serial timeout    ", 3 * kTimeOut},
        Cause{"TooShort", {2, 2, 0, '1'}, 15, "   [ RX ] serial timeout    ", 3 * kTimeOut},
        Cause{"Checksum", {2, 2, 0, '1', 3, 0}, 16, " [ RX ] checksum was wrong  ", 0},
        Cause{"Start", Sealed({1, 2, 0, '1', 3}), 24, "[ RX ] starting code unknown", 0},
        Cause{"EndBeforeChecksum", {2, 2, 0, '1', 4, 0}, 21, "[ RX ] number of bytes wrong", 0},
        Cause{"EndWithGoodChecksum", Sealed({2, 2, 0, '1', 4}), 21, "[ RX ] number of bytes wrong",
              0},
        Cause{"StartBeforeEnd", Sealed({1, 2, 0, '1', 4}), 24, "[ RX ] starting code unknown", 0},
        Cause{"UnknownCode", Sealed({2, 0x24, 0, '1', 3}), 18, "    [ RX ] code unknown     ", 0},
        Cause{"OtherLength", Sealed({2, 1, 0, '1', 3}), 21, "[ RX ] number of bytes wrong", 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(EngineTest, CoderRefusesByNumber) {
  Start(kLocal, {}, /*open=*/false);
  Open();
  WriteTp();
  EXPECT_EQ(LinkError, 8);

  const auto transfer = [](Bytes frame) {
    frame.push_back(0);  // the checksum's place
    TransferFrame(frame);
    return LinkError;
  };
  const Bytes address{2, 8, 0, '?', '?', '?', '?', '?', 3};
  const std::pair<Bytes, int> cases[] = {{address, kLinkOk},
                                         {{2, 1, 1, 3}, 2},
                                         {{2, 0x7F, 0, 3}, 3},
                                         {{2, 2, 0, '1', '1', 3}, 6},
                                         {{2, 8, 0, 3}, 7},
                                         {{1, 2, 0, '1', 3}, 9},
                                         {{2, 2, 0, '2', 3}, 10},
                                         {{2, 2, 0, '1', 3}, kLinkOk},
                                         {{2, 8, 0, 'o', 't', 'h', 'e', 'r', 3}, 11}};
  for (const auto& [frame, error] : cases) EXPECT_EQ(transfer(frame), error);
}

TEST_F(EngineTest, LineThatGoesAwayEndsInAnError) {
  Start(kLocal, {.unplug_after = 2});
  Open();
  WriteTp();
  ASSERT_EQ(LinkError, kLinkOk);
  EXPECT_FALSE(ReadTp());  // goes with the request, and nobody is left to answer
  EXPECT_EQ(BoxText(), "TP:   [ TX ] serial timeout    ");
  EXPECT_NEAR(time.Elapsed(), kTimeOut, 0.001);
  EXPECT_FALSE(ReadTp());
  EXPECT_EQ(BoxText(), "TP: [ TX ] serial unconnected  ");
  EXPECT_NEAR(time.Elapsed(), kTimeOut, 0.001);
  line->Replug();
  Open();
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
}

TEST_F(EngineTest, TextsThatNothingSetsStandInTheTableToo) {
  const std::pair<std::int16_t, const char*> cases[] = {
      {0, "                            "},  {17, "[ RX ] pointer value too big"},
      {19, "    [ RX ] parity wrong     "}, {20, "[ RX ] stop bits were wrong "},
      {22, "  [ RX ] not acknowledge    "}, {23, "    [ RX ] overrun error    "},
      {25, "     Baudrate mismatch      "}, {26, "       Unmanged error       "},
      {27, " [ TX ] RDS not responding  "}, {99, "       Unmanged error       "}};
  for (const auto& [error, text] : cases) EXPECT_EQ(LinkErrorText(error), text) << error;
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
    if (configData == nullptr) StartLocal();
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

TEST_F(EngineTest, PortThatIsNotOpenIsUnconnectedAndAnyOtherErrorLeavesTheCode) {
  StartLocal();
  port.output_error = {kPortNotOpen, "gone"};
  WriteTp();
  EXPECT_EQ(BoxText(), "TP: [ TX ] serial unconnected  ");
  LinkError = kLinkOk;
  port.output_error = {8020, "error writing to comm device"};
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
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

TEST(QueueTest, HoldsAllItsPlacesInOrder) {
  Queue queue;
  EXPECT_EQ(queue.QPop(), 0);
  for (int round = 0; round < 3; ++round) {  // the indexes wrap at another place each time
    for (int i = 0; i < Queue::kCapacity; ++i) queue.QPush(static_cast<std::uint8_t>(i * 7));
    EXPECT_TRUE(queue.QFull());
    EXPECT_FALSE(queue.QEmpty());
    queue.QPush(0xEE);  // dropped
    EXPECT_EQ(queue.QPop(), 0);
    EXPECT_FALSE(queue.QFull());
    for (int i = 1; i < Queue::kCapacity; ++i) {
      ASSERT_EQ(queue.QPop(), static_cast<std::uint8_t>(i * 7));
    }
    EXPECT_TRUE(queue.QEmpty());
    queue.QPush(1);
    EXPECT_EQ(queue.QPop(), 1);
  }
  queue.QPush(1);
  queue.QReset();
  EXPECT_TRUE(queue.QEmpty());
}

}  // namespace
}  // namespace corvalis::test
