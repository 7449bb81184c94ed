#pragma once

#include "screen/control.h"

namespace corvalis {

/// A bar from `kMin` to `kMax`.
class ProgressBar : public Control {
 public:
  using Control::Control;

  static constexpr int kMin = 0;
  static constexpr int kMax = 100;

  [[nodiscard]] int Value() const { return value_; }

  /// One tick of an activity indicator: the bar fills by one, and starts again once it is full.
  void Tick() { Set(value_, value_ >= kMax ? kMin : value_ + 1); }

 private:
  int value_ = kMin;
};

}  // namespace corvalis
