// The clock of the computer, and the waits on it.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>

#include "desktop/qt_time.h"

namespace corvalis::desktop {
namespace {

constexpr double kNeverReached = 86400;

class PumpTest : public testing::Test {
 protected:
  // Seconds that `work` takes.
  template <typename Work>
  static double Took(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  }
  // Runs what has come so far, so that a wait meets only what the test sends.
  void SetUp() override { time.RunPending(); }

  QtTime time;
};

TEST_F(PumpTest, TheClockShowsLocalTime) {
  const DateTime now = time.Now();
  const std::chrono::duration<double> since_midnight =
      now - std::chrono::floor<std::chrono::days>(now);
  double later = time.Timer() - since_midnight.count();
  if (later < 0) later += kNeverReached;  // midnight in between
  EXPECT_GE(later, 0);
  EXPECT_LT(later, 30);
}

TEST_F(PumpTest, RunsWhatIsPendingAndReturns) {
  int ran = 0;
  QMetaObject::invokeMethod(
      qApp, [&] { ++ran; }, Qt::QueuedConnection);
  EXPECT_EQ(ran, 0);
  time.RunPending();
  EXPECT_EQ(ran, 1);
  time.RunPending();
  EXPECT_EQ(ran, 1);
}

TEST_F(PumpTest, AnEventEndsAWait) {
  for (const double deadline : {time.Timer() + 60, kNeverReached, kNeverReached + 10}) {
    bool ran = false;
    QTimer::singleShot(1, qApp, [&] { ran = true; });
    const double took = Took([&] {
      while (!ran) time.RunUntil(deadline);
    });
    EXPECT_LT(took, 30) << deadline;
  }
}

TEST_F(PumpTest, AWaitEndsPastItsDeadlineAndNotBefore) {
  if (time.Timer() > kNeverReached - 60) GTEST_SKIP() << "too near to midnight";
  const double start = time.Timer();
  const double deadline = start + 0.005;
  int rounds = 0;
  while (time.Timer() <= deadline) {
    time.RunUntil(deadline);
    ++rounds;
  }
  EXPECT_LT(rounds, 50);  // it slept
  EXPECT_LT(Took([&] { time.RunUntil(start - 1); }), 30);
}

}  // namespace
}  // namespace corvalis::desktop
