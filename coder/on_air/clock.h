#pragma once

#include <chrono>
#include <optional>

#include "coder/coder.h"
#include "coder/on_air/air_time.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

using LocalMinute = std::chrono::local_time<std::chrono::minutes>;
using UtcMinute = std::chrono::sys_time<std::chrono::minutes>;

/// The Coder's clock. It is set by each clock time that is sent, which is local, and begins there
/// with second 0; from then on it runs with the air. Its years are 2000 to 2099.
class Clock {
 public:
  /// Sets the clock if a clock time has been sent since the last call.
  void Follow(const Coder& coder, AirTime now);

  /// The minute that it is, and that it will be; nullopt until a clock time was sent.
  [[nodiscard]] std::optional<LocalMinute> Local(AirTime at) const;

  /// What local time is ahead of UTC, half hours from -24 to 24.
  [[nodiscard]] int OffsetHalfHours() const { return offset_; }
  [[nodiscard]] UtcMinute Utc(LocalMinute local) const;

 private:
  Watch watch_{{kCt}};
  bool set_ = false;
  AirTime set_at_{};
  LocalMinute begins_{};
  int offset_ = 0;
};

}  // namespace corvalis::coder
