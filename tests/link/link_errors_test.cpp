// Every error of the link, by a cause of its own, and its words.

#include <gtest/gtest.h>

#include <utility>

#include "link/engine_fixture.h"

namespace corvalis::test {
namespace {

constexpr double kTimeOut = 15;

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

}  // namespace
}  // namespace corvalis::test
