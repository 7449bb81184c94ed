#include "screen/window.h"

#include <algorithm>
#include <utility>

#include "screen/control.h"

namespace corvalis {

namespace {
ScreenHost* host = nullptr;
}  // namespace

void Window::SetHost(ScreenHost* new_host) { host = new_host; }

Window::~Window() {
  if (shown_to_host_ && host != nullptr) host->Gone(*this);
}

void Window::SetCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Redraw();
}

void Window::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Redraw();
  if (enabled && Resumed) Resumed();
}

void Window::Show(Window* owner) {
  owner_ = owner;
  visible_ = true;
  if (host != nullptr) {
    shown_to_host_ = true;
    host->Shown(*this);
  }
  Redraw();
}

void Window::ShowModal(Window& owner) {
  owner.SetEnabled(false);
  modal_ = true;
  Show(&owner);
}

void Window::Hide() {
  if (!visible_) return;
  visible_ = false;
  Redraw();
}

void Window::SetFocus() {
  if (RaiseAsked) RaiseAsked();
}

bool Window::Unload() {
  bool cancel = false;
  if (QueryUnload) QueryUnload(cancel);
  if (cancel) return false;
  if (Unloading) Unloading();
  Hide();
  focus_ = nullptr;  // a box that could not be left must not hold the window when it comes again
  if (std::exchange(modal_, false)) {
    owner_->SetEnabled(true);
    owner_->SetFocus();
  }
  return true;
}

void Window::Close() {
  if (!enabled_ || !visible_) return;
  MoveFocus(nullptr);
  Unload();
}

bool Window::MoveFocus(Control* to) {
  if (!enabled_ || leaving_) return focus_ == to;
  if (to != nullptr && !to->TakesEvents()) return false;
  if (to == focus_) return true;
  Control* left = focus_;
  if (left != nullptr) {
    leaving_ = true;
    focus_target_ = to;
    asked_back_ = nullptr;
    if (left->LostFocus) left->LostFocus();
    focus_target_ = nullptr;
    leaving_ = false;
    Control* back = std::exchange(asked_back_, nullptr);
    if (back != nullptr && back->TakesEvents()) {
      focus_ = back;
      if (back != left && back->GotFocus) back->GotFocus();
      Redraw();
      return back == to;
    }
  }
  // The rule may have disabled or hidden what was to get the focus.
  focus_ = to != nullptr && to->TakesEvents() ? to : nullptr;
  if (focus_ != nullptr && focus_->GotFocus) focus_->GotFocus();
  Redraw();
  return focus_ == to;
}

void Window::AskFocus(Control& control) {
  if (leaving_) {
    asked_back_ = &control;
  } else if (control.Enabled() && control.Visible()) {
    const bool enabled =
        std::exchange(enabled_, true);  // the program may, on a disabled window too
    const bool visible = std::exchange(visible_, true);
    MoveFocus(&control);
    enabled_ = enabled;
    visible_ = visible;
  }
}

Control* Window::Find(const std::string& name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&name](const Control* c) { return c->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Window::Redraw() const {
  if (Drawn) Drawn();
}

}  // namespace corvalis
