#pragma once

#include <QObject>
#include <functional>
#include <typeindex>
#include <unordered_map>

#include "desktop/widgets/presses/held_keys.h"
#include "desktop/widgets/windows/window_view.h"
#include "screen/window.h"

class QKeyEvent;
class QWindow;

namespace corvalis::desktop {

/// Puts the windows of the program on the screen. There is one, and it must outlive all forms.
/// It also looks after the operator's hands: a disabled window gets no event, and the keyboard is
/// with what stands in front of it; a key held down counts as struck once, whatever window it comes
/// to (each repetition is marked as one, `QKeyEvent::isAutoRepeat`, so a control that a key presses
/// asks for no more than that); the second press of a double click goes to no window that the first
/// one has opened; ESC closes a working screen; mnemonics are served.
class QtScreenHost : public QObject, public ScreenHost {
 public:
  QtScreenHost();
  ~QtScreenHost() override;

  /// Windows of the form `Form` are drawn by a `View`, which is made from the form at the first
  /// show and stays until the form ends. A form that nobody has registered stays unseen.
  template <class Form, class View>
  void Register() {
    makers_[typeid(Form*)] = [](Window& window) { return new View(*window.FormAs<Form>()); };
  }

  void Shown(Window& window) override;
  void Gone(Window& window) override;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  [[nodiscard]] WindowView* ViewUnder(QObject* receiver) const;
  // What comes from the window system. True where that is the end of it.
  [[nodiscard]] bool Swallowed(QWindow& window, QEvent& event);
  [[nodiscard]] bool KeyHandled(QWindow& window, QKeyEvent& event);
  // A key that means the same whatever control has the keyboard.
  [[nodiscard]] static bool KeyOfWindow(WindowView& view, const QWidget& focus, QKeyEvent& event);

  std::unordered_map<std::type_index, std::function<WindowView*(Window&)>> makers_;
  std::unordered_map<Window*, WindowView*> views_;
  HeldKeys held_keys_;
  const QWindow* last_pressed_ = nullptr;  // only compared
};

}  // namespace corvalis::desktop
