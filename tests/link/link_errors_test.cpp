// Every error of the link, by a cause of its own, and its words.

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "link/engine_fixture.h"

namespace corvalis::test {
namespace {

constexpr double kTimeOut = 15;

struct Cause {
  Bytes answer;  ///< what comes back at once; empty for nothing
  int error;
  const char* text;
  double seconds;
};

class LinkErrors : public EngineTest {
 protected:
  /// `transfer` writes `attempts` frames that are answered so, and is reported once.
  void Expect(const Cause& c, const Bytes& answer, std::size_t attempts,
              const std::function<void()>& transfer) {
    SCOPED_TRACE(testing::PrintToString(answer));
    port.answer = [&answer](const Bytes&) { return answer; };
    port.written.clear();
    dialogs.boxes.clear();
    const double begin = time.Elapsed();
    transfer();
    EXPECT_EQ(LinkError, c.error);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(BoxText(), std::string("TP:") + c.text);
    EXPECT_NEAR(time.Elapsed() - begin, c.seconds, 0.001);
    EXPECT_EQ(port.written.size(), attempts);
  }
};

TEST_F(LinkErrors, ErrorsOfAWriteAreReportedInTheirWords) {
  const Cause causes[] = {
      {Refusal(1), 1, "  [RDS] checksum was wrong  ", 0},
      {Refusal(2), 2, " [RDS] pointer value too big", 0},
      {Refusal(3), 3, "     [RDS] code unknown     ", 0},
      {Refusal(4), 4, "     [RDS] parity wrong     ", 0},
      {Refusal(5), 5, " [RDS] stop bits were wrong ", 0},
      {Refusal(6), 6, " [RDS] number of bytes wrong", 0},
      {Refusal(7), 7, " [RDS] read mode not allowed", 0},
      {Refusal(8), 8, " [RDS] before send address  ", 0},
      {Refusal(9), 9, " [RDS] starting code unknown", 0},
      {Refusal(10), 10, " [RDS]write mode not allowed", 0},
      {Refusal(11), 11, "  [RDS] address was wrong   ", 0},
      {Refusal(12), -1, "       Unmanged error       ", 0},
      {Refusal(0), -1, "       Unmanged error       ", 0},
      {{kNak, 2, 1, 5, 3, 5}, -1, "       Unmanged error       ", 0},  // names a command
      {{}, 12, "   [ TX ] serial timeout    ", kTimeOut},
      {{0x41}, 14, "   [ TX ] not acknowledge   ", 0},
      {{kNak, 2, 0, 5, 3, 0}, 14, "   [ TX ] not acknowledge   ", 0},  // bad checksum
      {{kNak, 2, 0}, 14, "   [ TX ] not acknowledge   ", kTimeOut}};
  StartLocal();
  for (const Cause& c : causes) {
    Expect(c, c.answer, 1, [this] { WriteTp(); });
  }
  EXPECT_EQ(dialogs.boxes[0].title, "Serial Management");
  EXPECT_EQ(dialogs.boxes[0].style, BoxStyle::kCritical);
}

TEST_F(LinkErrors, ErrorsOfAReadAreReportedInTheirWords) {
  const Cause causes[] = {{{}, 15, "   [ RX ] serial timeout    ", 3 * kTimeOut},
                          {{2, 2, 0, '1'}, 15, "   [ RX ] serial timeout    ", 3 * kTimeOut},
                          {{2, 2, 0, '1', 3, 0}, 16, " [ RX ] checksum was wrong  ", 0},
                          {Sealed({1, 2, 0, '1', 3}), 24, "[ RX ] starting code unknown", 0},
                          {Sealed({2, 2, 0, '1', 4}), 21, "[ RX ] number of bytes wrong", 0},
                          {Sealed({2, 0x24, 0, '1', 3}), 18, "    [ RX ] code unknown     ", 0},
                          {Sealed({2, 1, 0, '1', 3}), 21, "[ RX ] number of bytes wrong", 0}};
  StartLocal();
  for (const Cause& c : causes) {
    Expect(c, Acknowledged(c.answer), c.seconds > 0 ? 3 : 1, [this] { EXPECT_FALSE(ReadTp()); });
    EXPECT_EQ(port.written.back(), Sealed({2, 2, 0, 3}));
  }
}

TEST_F(LinkErrors, LineThatGoesAwayEndsInAnError) {
  Start(kLocal, {.unplug_after = 2});
  Open();
  WriteTp();
  ASSERT_EQ(LinkError, kLinkOk);
  EXPECT_FALSE(ReadTp());  // goes with the request, and nobody is left to answer
  EXPECT_EQ(BoxText(), "TP:   [ TX ] serial timeout    ");
  EXPECT_FALSE(ReadTp());
  EXPECT_EQ(BoxText(), "TP: [ TX ] serial unconnected  ");
  line->Replug();
  Open();
  WriteTp();
  EXPECT_EQ(LinkError, kLinkOk);
}

}  // namespace
}  // namespace corvalis::test
