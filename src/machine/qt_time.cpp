#include "machine/qt_time.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <ctime>

namespace corvalis::machine {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using std::chrono::system_clock;

constexpr int kMinute = 60;
constexpr int kHour = 3600;
constexpr double kMillisecondsPerSecond = 1e3;
constexpr int kFirstYear = 1900;

std::tm LocalTime(system_clock::time_point when) {
  const std::time_t seconds = system_clock::to_time_t(when);
  std::tm local{};
  localtime_r(&seconds, &local);
  local.tm_sec = std::min(local.tm_sec, kMinute - 1);  // a leap second
  return local;
}

}  // namespace

double QtTime::Timer() const {
  const auto when = system_clock::now();
  const std::tm local = LocalTime(when);
  const std::chrono::duration<double> fraction =
      when - std::chrono::floor<std::chrono::seconds>(when);
  return local.tm_hour * kHour + local.tm_min * kMinute + local.tm_sec + fraction.count();
}

double QtTime::Steady() const {
  return std::chrono::duration<double>(steady_clock::now().time_since_epoch()).count();
}

DateTime QtTime::Now() const {
  namespace chrono = std::chrono;
  const std::tm local = LocalTime(system_clock::now());
  return chrono::local_days{chrono::year{local.tm_year + kFirstYear} /
                            chrono::month{static_cast<unsigned>(local.tm_mon + 1)} /
                            chrono::day{static_cast<unsigned>(local.tm_mday)}} +
         chrono::hours{local.tm_hour} + chrono::minutes{local.tm_min} +
         chrono::seconds{local.tm_sec};
}

void QtTime::RunPending() { QCoreApplication::processEvents(); }

void QtTime::RunUntil(double deadline) {
  if (std::isinf(deadline)) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return;
  }
  const double left = deadline - Steady();
  if (left < 0) return;
  // The wait is over once the clock is past the deadline, so the last millisecond is waited too.
  RunEventsFor(milliseconds(static_cast<int>(left * kMillisecondsPerSecond) + 1));
}

void RunEventsFor(milliseconds time) {
  QTimer wake;
  wake.setTimerType(Qt::PreciseTimer);
  wake.setSingleShot(true);
  wake.start(time);
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace corvalis::machine
