#pragma once

#include <any>
#include <functional>
#include <string>
#include <vector>

namespace corvalis {

class Control;
class Window;

/// Whoever puts windows before a person. Without one (in most tests) windows live unseen.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;
  /// `window` has just become visible.
  virtual void Shown(Window& window) = 0;
  /// `window` ends; nothing may be asked of it afterwards.
  virtual void Gone(Window& window) = 0;
};

/// A window without pixels: its state, its focus and its close rule. A form owns one, as its first
/// member, and its controls register with it.
///
/// A disabled window takes no event at all from the operator: no click, no key, no close. What the
/// program itself asks is done all the same.
class Window {
 public:
  /// `form` is the form that owns the window; whoever draws it finds it by `FormAs`. `name` is the
  /// form's name.
  template <class Form>
  Window(Form* form, std::string name) : form_(form), name_(std::move(name)) {}
  ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }

  /// The form, if it is a `Form`; else null.
  template <class Form>
  [[nodiscard]] Form* FormAs() const {
    Form* const* form = std::any_cast<Form*>(&form_);
    return form == nullptr ? nullptr : *form;
  }
  /// The form's type, for a table of drawers.
  [[nodiscard]] const std::type_info& FormType() const { return form_.type(); }

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  [[nodiscard]] bool Visible() const { return visible_; }
  /// Shows the window, in front of `owner` if one is given.
  void Show(Window* owner = nullptr);
  /// Shows the window in front of `owner` and keeps `owner` disabled until this one is unloaded;
  /// then `owner` is enabled and gets the focus.
  void ShowModal(Window& owner);
  /// True while the window keeps its owner disabled, as working screens do.
  [[nodiscard]] bool Modal() const { return modal_; }
  void Hide();
  [[nodiscard]] Window* OwnerWindow() const { return owner_; }

  /// Brings the window to the front: it takes the keyboard.
  void SetFocus();

  /// The program ends the window: asks `QueryUnload`, raises `Unloading` and hides it. Returns
  /// false if `QueryUnload` cancelled.
  bool Unload();
  /// The operator's close box. A disabled window ignores it. The focus leaves its control first,
  /// so that what was typed there is taken.
  void Close();

  /// May set `cancel` to keep the window open.
  std::function<void(bool& cancel)> QueryUnload;
  std::function<void()> Unloading;

  /// The window can be used again after it was disabled.
  std::function<void()> Resumed;

  /// The control that has the window's focus; null if none.
  [[nodiscard]] Control* Focus() const { return focus_; }
  /// The operator moves the focus to `to` (null: out of the window). The control left raises
  /// `LostFocus` first. If its rule asks the focus back, the rule wins once it has ended. Returns
  /// true if `to` has the focus in the end.
  bool MoveFocus(Control* to);

  /// While a lost-focus rule runs: where the focus is going; null for out of the window.
  [[nodiscard]] Control* FocusTarget() const { return focus_target_; }

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name, as "PiText" or "Text39(0)"; null if there is none.
  [[nodiscard]] Control* Find(const std::string& name) const;

  /// Called after each change of caption, state, focus or front, for whoever draws the window.
  std::function<void()> Drawn;
  std::function<void()> RaiseAsked;

  /// The host of all windows; null for none.
  static void SetHost(ScreenHost* host);

 private:
  friend class Control;
  void Redraw() const;
  void AskFocus(Control& control);

  std::any form_;
  std::string name_;
  std::string caption_;
  bool enabled_ = true;
  bool visible_ = false;
  bool shown_to_host_ = false;
  Window* owner_ = nullptr;
  bool modal_ = false;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  Control* focus_target_ = nullptr;
  bool leaving_ = false;           // a lost-focus rule is running
  Control* asked_back_ = nullptr;  // what that rule asked for
};

}  // namespace corvalis
