#include "screen/control.h"

#include <algorithm>
#include <utility>

#include "screen/window.h"

namespace corvalis {

Control::Control(Window& window, std::string name) : window_(window), name_(std::move(name)) {
  window_.controls_.push_back(this);
}

Control::~Control() {
  auto& controls = window_.controls_;
  controls.erase(std::remove(controls.begin(), controls.end(), this), controls.end());
  if (window_.focus_ == this) window_.focus_ = nullptr;
}

bool Control::TakesEvents() const {
  return enabled_ && visible_ && window_.Enabled() && window_.Visible();
}

bool Control::HasFocus() const { return window_.Focus() == this; }

void Control::SetFocus() { window_.AskFocus(*this); }

}  // namespace corvalis
