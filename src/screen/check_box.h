#pragma once

#include <functional>

#include "screen/control.h"
#include "screen/window.h"

namespace corvalis {

/// A box that is checked or not. Whoever sets it, the operator or the program, raises `Click` if
/// that changes it; so two boxes that set each other come to rest.
class CheckBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] bool Checked() const { return checked_; }
  void SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Redraw();
    if (Click) Click();
  }

  /// The operator clicks the box, which takes the focus and changes over.
  void Press() {
    if (TakesEvents() && ParentWindow().MoveFocus(this)) SetChecked(!checked_);
  }

  /// What the box tells by its colour.
  enum class Tone { kPlain, kOn, kOff };
  [[nodiscard]] Tone ColourTone() const { return tone_; }
  /// `kOn` is green, `kOff` red.
  void SetTone(Tone tone) { Set(tone_, tone); }

  std::function<void()> Click;

 private:
  bool checked_ = false;
  Tone tone_ = Tone::kPlain;
};

}  // namespace corvalis
