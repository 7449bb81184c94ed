#pragma once

#include <algorithm>

#include "screen/control.h"

namespace corvalis {

/// A bar that shows how much of a whole something takes. The operator can't move it.
class Meter : public Control {
 public:
  using Control::Control;

  static constexpr int kMax = 1000;

  /// Per mille of the whole, 0 to `kMax`.
  [[nodiscard]] int Value() const { return value_; }
  /// A value outside the scale is moved to its end.
  void SetValue(int value) { Set(value_, std::clamp(value, 0, kMax)); }

 private:
  int value_ = 0;
};

}  // namespace corvalis
