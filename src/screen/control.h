#pragma once

#include <functional>
#include <string>

namespace corvalis {

class Window;

/// What every control of a screen has. A form's members are controls; the form sets the events
/// (`GotFocus`, `Click` ...) in its constructor. Texts are Windows-1252.
///
/// Each kind of control has two sides: properties, which the program sets, and the operator's
/// hand (`Click`-like verbs such as `Press`, `Choose`, `TypeKey`), which a disabled or hidden
/// control, or one on a disabled window, ignores.
class Control {
 public:
  Control(Window& window, std::string name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] Window& ParentWindow() const { return window_; }

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Set(enabled_, enabled); }
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Set(visible_, visible); }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption) { Set(caption_, caption); }
  [[nodiscard]] const std::string& ToolTip() const { return tool_tip_; }
  void SetToolTip(const std::string& tip) { Set(tool_tip_, tip); }
  /// Both at once, as a screen takes its language.
  void SetTexts(const std::string& caption, const std::string& tip) {
    SetCaption(caption);
    SetToolTip(tip);
  }

  /// True if the operator can act on the control now.
  [[nodiscard]] bool TakesEvents() const;

  [[nodiscard]] bool HasFocus() const;
  /// The program gives the control its window's focus. From within a lost-focus rule this takes
  /// effect after the rule has ended.
  void SetFocus();

  std::function<void()> GotFocus;
  std::function<void()> LostFocus;

  /// Called after each change of what is to be seen, for whoever draws the control.
  std::function<void()> Drawn;

 protected:
  void Redraw() const {
    if (Drawn) Drawn();
  }

  template <class T>
  void Set(T& field, const T& value) {
    if (field == value) return;
    field = value;
    Redraw();
  }

 private:
  Window& window_;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  std::string caption_;
  std::string tool_tip_;
};

/// A control that only shows: a label, or a picture such as a brand mark.
class Label : public Control {
 public:
  using Control::Control;
};

}  // namespace corvalis
