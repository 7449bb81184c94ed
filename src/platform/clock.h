#pragma once

#include <chrono>

namespace corvalis {

/// A local date and time of whole seconds, without a time zone.
using DateTime = std::chrono::local_seconds;

/// What the program knows of time.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Seconds since local midnight, with fractions: 0 <= value < 86400. Falls back to 0 at midnight.
  [[nodiscard]] virtual double Timer() const = 0;

  /// Seconds, with fractions, on a clock that only runs forward and that nobody can set; they count
  /// from a start of their own.
  [[nodiscard]] virtual double Steady() const = 0;

  /// The present local date and time.
  [[nodiscard]] virtual DateTime Now() const = 0;
};

/// Day of the week of `when`, Monday 1 to Sunday 7.
[[nodiscard]] inline int WeekdayFromMonday(DateTime when) {
  const std::chrono::weekday day{std::chrono::floor<std::chrono::days>(when)};
  return static_cast<int>(day.iso_encoding());
}

}  // namespace corvalis
