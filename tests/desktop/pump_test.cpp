// The clock of the computer, and the waits on it.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>
#include <limits>

#include "machine/qt_time.h"

namespace corvalis::desktop {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

TEST(PumpTest, TheClockShowsLocalTime) {
  const machine::QtTime time;
  const DateTime now = time.Now();
  const std::chrono::duration<double> since_midnight =
      now - std::chrono::floor<std::chrono::days>(now);
  double later = time.Timer() - since_midnight.count();
  if (later < 0) later += 86400;  // midnight in between
  EXPECT_LT(later, 30);
}

TEST(PumpTest, AnEventEndsAWait) {
  machine::QtTime time;
  time.RunPending();
  for (const double deadline : {time.Steady() + 60, kNever}) {
    bool ran = false;
    QTimer::singleShot(1, qApp, [&] { ran = true; });
    while (!ran) time.RunUntil(deadline);
    EXPECT_LT(time.Steady(), deadline);
  }
}

TEST(PumpTest, AWaitEndsPastItsDeadlineAndNotBefore) {
  machine::QtTime time;
  const double deadline = time.Steady() + 0.005;
  int rounds = 0;
  while (time.Steady() <= deadline) {
    time.RunUntil(deadline);
    ++rounds;
  }
  EXPECT_LT(rounds, 50);        // it slept
  time.RunUntil(deadline - 1);  // is over already
}

}  // namespace
}  // namespace corvalis::desktop
