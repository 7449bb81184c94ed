#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screen/control.h"

namespace corvalis {

/// The tabs of a screen, from 0; one is in front. The control knows their captions, not what
/// stands on them.
class Tabs : public Control {
 public:
  Tabs(Window& window, std::string name, std::vector<std::string> captions)
      : Control(window, std::move(name)), captions_(std::move(captions)) {}

  [[nodiscard]] const std::vector<std::string>& Captions() const { return captions_; }
  [[nodiscard]] int Tab() const { return tab_; }
  /// Brings a tab to the front; raises `Click` if that is another one. `std::out_of_range` outside
  /// the tabs.
  void SetTab(int tab) {
    static_cast<void>(captions_.at(static_cast<std::size_t>(tab)));
    if (tab_ == tab) return;
    tab_ = tab;
    Redraw();
    if (Click) Click();
  }

  /// The operator chooses a tab, which takes the focus. If the control left refuses to be left,
  /// the tab stays.
  void Choose(int tab);

  std::function<void()> Click;

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

}  // namespace corvalis
