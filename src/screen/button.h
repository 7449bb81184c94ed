#pragma once

#include <functional>

#include "screen/control.h"
#include "screen/window.h"

namespace corvalis {

class Button : public Control {
 public:
  using Control::Control;

  /// The operator presses the button, which takes the focus. If the control left refuses to be
  /// left, the press is not carried out.
  void Press() {
    if (TakesEvents() && ParentWindow().MoveFocus(this) && Click) Click();
  }
  /// The operator strikes a key while the button has the focus; `key` is the key's code, 27 is ESC.
  void TypeKey(int key) {
    if (TakesEvents() && KeyPress) KeyPress(key);
  }

  std::function<void()> Click;
  std::function<void(int key)> KeyPress;
};

}  // namespace corvalis
