#include "screen/tabs.h"

#include <cstdlib>

#include "screen/window.h"

namespace corvalis {

Tabs::Tabs(Window& window, std::string name, const std::vector<std::string>& captions)
    : Control(window, std::move(name)) {
  for (const std::string& caption : captions) tabs_.push_back({.caption = caption});
}

void Tabs::SetTabCaptions(const std::vector<std::string>& captions) {
  for (std::size_t i = 0; i < tabs_.size(); ++i) tabs_[i].caption = captions.at(i);
  Redraw();
}

void Tabs::SetTab(int tab) {
  if (!At(tab).visible || front_ == tab) return;
  front_ = tab;
  Redraw();
  if (Click) Click();
}

void Tabs::SetTabVisible(int tab, bool visible) {
  Set(At(tab).visible, visible);
  if (!At(front_).visible) LeaveHidden();
}

void Tabs::SetTabEnabled(int tab, bool enabled) { Set(At(tab).enabled, enabled); }

void Tabs::LeaveHidden() {
  int nearest = front_;
  const auto better = [this, &nearest](int tab) {
    if (nearest == front_) return true;
    if (At(tab).enabled != At(nearest).enabled) return At(tab).enabled;
    return std::abs(tab - front_) < std::abs(nearest - front_);
  };
  for (int tab = 0; tab < Count(); ++tab) {
    if (At(tab).visible && better(tab)) nearest = tab;
  }
  SetTab(nearest);
}

void Tabs::Choose(int tab) {
  if (!TakesEvents() || tab < 0 || tab >= Count()) return;
  if (!At(tab).visible || !At(tab).enabled) return;
  if (ParentWindow().MoveFocus(this)) SetTab(tab);
}

}  // namespace corvalis
