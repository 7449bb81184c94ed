#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screen/control.h"

namespace corvalis {

/// The tabs of a screen, numbered from 0; one is in front. The control knows their captions, not
/// what stands on them. A tab can be hidden or disabled alone, and keeps its number. A number
/// outside the tabs is `std::out_of_range`.
class Tabs : public Control {
 public:
  Tabs(Window& window, std::string name, const std::vector<std::string>& captions);

  [[nodiscard]] int Count() const { return static_cast<int>(tabs_.size()); }
  [[nodiscard]] const std::string& TabCaption(int tab) const { return At(tab).caption; }

  /// Gives all tabs other captions, as a screen takes its language.
  void SetTabCaptions(const std::vector<std::string>& captions);

  [[nodiscard]] int Tab() const { return front_; }
  /// Brings a tab to the front; raises `Click` if that is another one. A hidden one can't come to
  /// the front: all stays as it is.
  void SetTab(int tab);

  [[nodiscard]] bool TabVisible(int tab) const { return At(tab).visible; }
  /// Hiding the tab in front brings the nearest visible one to the front, one that can be used
  /// rather than a disabled one; if there is none, it stays in front, unseen.
  void SetTabVisible(int tab, bool visible);
  [[nodiscard]] bool TabEnabled(int tab) const { return At(tab).enabled; }
  /// The operator can't bring a disabled tab to the front; the program can.
  void SetTabEnabled(int tab, bool enabled);

  /// The operator chooses a tab, which takes the focus. If the control left refuses to be left,
  /// the tab stays.
  void Choose(int tab);

  std::function<void()> Click;

 private:
  struct One {
    std::string caption;
    bool visible = true;
    bool enabled = true;
  };
  [[nodiscard]] const One& At(int tab) const { return tabs_.at(static_cast<std::size_t>(tab)); }
  [[nodiscard]] One& At(int tab) { return tabs_.at(static_cast<std::size_t>(tab)); }
  void LeaveHidden();

  std::vector<One> tabs_;
  int front_ = 0;
};

}  // namespace corvalis
