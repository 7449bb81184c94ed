#pragma once

#include <chrono>

namespace corvalis::air {

/// The time (CT), at the edge of a minute.
struct ClockTime {
  using Minute = std::chrono::sys_time<std::chrono::minutes>;
  using LocalMinute = std::chrono::local_time<std::chrono::minutes>;

  Minute utc{};
  int offset_half_hours = 0;  ///< what local time is ahead

  bool operator==(const ClockTime&) const = default;

  [[nodiscard]] std::chrono::minutes Offset() const {
    return std::chrono::minutes(30 * offset_half_hours);
  }
  /// As a radio shows it.
  [[nodiscard]] LocalMinute Local() const { return LocalMinute(utc.time_since_epoch() + Offset()); }
};

}  // namespace corvalis::air
