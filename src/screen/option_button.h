#pragma once

#include <functional>

#include "screen/control.h"
#include "screen/window.h"

namespace corvalis {

/// One of several of which one is chosen. Whoever chooses it, the operator or the program, raises
/// `Click` if that changes it; the form then takes the choice from its partners.
class OptionButton : public Control {
 public:
  using Control::Control;

  [[nodiscard]] bool Chosen() const { return chosen_; }
  void SetChosen(bool chosen) {
    if (chosen_ == chosen) return;
    Set(chosen_, chosen);
    if (chosen && Click) Click();
  }

  /// The operator chooses the option, which takes the focus.
  void Press() {
    if (TakesEvents() && ParentWindow().MoveFocus(this)) SetChosen(true);
  }

  std::function<void()> Click;

 private:
  bool chosen_ = false;
};

}  // namespace corvalis
