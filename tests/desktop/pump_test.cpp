// The clock of the computer, and the waits on it.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>

#include "desktop/machine/qt_time.h"

namespace corvalis::desktop {
namespace {

constexpr double kNeverReached = 86400;  // the clock of a day ends before

TEST(PumpTest, TheClockShowsLocalTime) {
  const QtTime time;
  const DateTime now = time.Now();
  const std::chrono::duration<double> since_midnight =
      now - std::chrono::floor<std::chrono::days>(now);
  double later = time.Timer() - since_midnight.count();
  if (later < 0) later += kNeverReached;  // midnight in between
  EXPECT_LT(later, 30);
}

TEST(PumpTest, AnEventEndsAWait) {
  QtTime time;
  time.RunPending();
  for (const double deadline : {time.Timer() + 60, kNeverReached + 10}) {
    bool ran = false;
    QTimer::singleShot(1, qApp, [&] { ran = true; });
    while (!ran) time.RunUntil(deadline);
    EXPECT_LT(time.Timer(), deadline);
  }
}

TEST(PumpTest, AWaitEndsPastItsDeadlineAndNotBefore) {
  QtTime time;
  if (time.Timer() > kNeverReached - 60) GTEST_SKIP() << "too near to midnight";
  const double deadline = time.Timer() + 0.005;
  int rounds = 0;
  while (time.Timer() <= deadline) {
    time.RunUntil(deadline);
    ++rounds;
  }
  EXPECT_LT(rounds, 50);        // it slept
  time.RunUntil(deadline - 1);  // is over already
}

}  // namespace
}  // namespace corvalis::desktop
