#pragma once

#include <functional>

#include "screen/control.h"

namespace corvalis {

/// A stepper: a scroll bar that rests in the middle and keeps no value of its own. The limits are
/// kept by whoever handles the steps.
class Spinner : public Control {
 public:
  using Control::Control;

  static constexpr int kRest = 16384;

  /// A value below the rest is one step up, above it one step down; the control is back at rest
  /// when the step has been handled.
  void SetValue(int value) {
    if (value < kRest && StepUp) StepUp();
    if (value > kRest && StepDown) StepDown();
  }

  /// The operator presses an arrow.
  void PressUp() {
    if (TakesEvents()) SetValue(kRest - 1);
  }
  void PressDown() {
    if (TakesEvents()) SetValue(kRest + 1);
  }

  std::function<void()> StepUp;
  std::function<void()> StepDown;
};

}  // namespace corvalis
