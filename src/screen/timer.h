#pragma once

#include <functional>

#include "screen/control.h"

namespace corvalis {

/// Fires again and again, inside a pump, while it is enabled and its window exists.
class Timer : public Control {
 public:
  Timer(Window& window, std::string name, int interval_ms)
      : Control(window, std::move(name)), interval_ms_(interval_ms) {}

  [[nodiscard]] int IntervalMs() const { return interval_ms_; }

  /// The interval is over.
  void Fire() {
    if (Enabled() && Tick) Tick();
  }

  std::function<void()> Tick;

 private:
  int interval_ms_;
};

}  // namespace corvalis
