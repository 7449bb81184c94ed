// The waits of the link, on a clock that falls back at midnight or is put back by hand.

#include "link/wait.h"

#include <gtest/gtest.h>

#include <functional>

#include "link/engine_fixture.h"
#include "link/modem.h"
#include "link/transfer.h"

namespace corvalis::test {
namespace {

class WaitTest : public EngineTest {
 protected:
  WaitTest() {
    StartLocal();
    screen.Show();
    port.answer = [this](const Bytes&) { return answer; };
  }

  /// What `work` takes, in seconds, if the clock falls back within it, and events then end it.
  double Took(bool at_midnight, const std::function<void()>& work) {
    if (at_midnight) {
      time.SetTimer(86400 - 8);
    } else {
      time.SetTimer(36000);
      time.After(3, [this] { time.SetTimer(36003 - 3600); });
    }
    port.written.clear();
    const double begin = time.Elapsed();
    work();
    return time.Elapsed() - begin;
  }

  Window screen{this, "Screen"};
  Bytes answer;  // what comes at once
};

TEST_F(WaitTest, EndsByItselfWhereNobodyCanAbortIt) {
  const struct {
    Bytes answer;
    std::function<void()> work;
    double seconds;
  } cases[] = {{{}, SendEnq, 15},
               {{kNak, kStart}, SendEnq, 15},
               {{kAck}, [this] { ReadTp(); }, 45},
               {{}, [] { WaitSeconds(12); }, 12},
               {{}, ModemHangUp, 20}};
  for (const auto& c : cases) {
    answer = c.answer;
    EXPECT_NEAR(Took(true, c.work), c.seconds, 0.001);
    EXPECT_NEAR(Took(false, c.work), c.seconds, 0.001);
  }
}

TEST_F(WaitTest, StaysUnderTheTransferScreenUntilAnAnswerOrEsc) {
  const struct {
    Bytes answer;
    std::function<void()> work;
    double esc, seconds;
  } cases[] = {{{}, [this] { WriteTp(); }, 700, 700.2},
               {{}, [this] { WriteTp(); }, 7.9, 8.1},  // the clock falls back behind the ESC
               {{kNak, kStart}, [this] { WriteTp(); }, 700, 700},
               {{kAck}, [this] { ReadTp(); }, 700, 700},
               {{}, [] { WaitSeconds(12); }, 700, 700},
               {{}, [] { WaitSeconds(12); }, 2, 12}};
  for (const auto& c : cases) {
    for (const bool at_midnight : {true, false}) {
      answer = c.answer;
      time.After(c.esc, [] { EscPressed = true; });
      EXPECT_NEAR(Took(at_midnight, [&] { RunRead(screen, c.work); }), c.seconds, 0.001);
      // The ESC of a pause is for the transfer that comes next.
      EXPECT_EQ(EscPressed, port.written.empty());
      EscPressed = false;
    }
  }
  answer = {};
  time.After(600, [this] { port.Receive({kAck}); });
  Took(true, [this] { RunRead(screen, [this] { WriteTp(); }); });
  EXPECT_EQ(LinkError, kLinkOk);
}

TEST_F(WaitTest, WhatHasComeWhileNobodyLookedIsNotLate) {
  const struct {
    Bytes answer, late;
    std::function<void()> work;
    std::size_t writes;
  } cases[] = {{{}, {kAck}, [this] { WriteTp(); }, 1},
               {{kAck}, Sealed({2, 2, 0, '1', 3}), [this] { EXPECT_TRUE(ReadTp()); }, 1},
               {{}, Text("OK"), ModemHangUp, 2}};
  for (const auto& c : cases) {
    answer = c.answer;
    port.written.clear();
    time.After(3, [this] { time.Stall(40); });
    time.After(5, [this, &c] { port.Receive(c.late); });
    c.work();
    EXPECT_EQ(LinkError, kLinkOk);
    EXPECT_EQ(port.written.size(), c.writes);
  }
}

}  // namespace
}  // namespace corvalis::test
