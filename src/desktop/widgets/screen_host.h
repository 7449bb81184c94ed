#pragma once

#include <QObject>
#include <functional>
#include <typeindex>
#include <unordered_map>

#include "desktop/widgets/window_view.h"
#include "screen/window.h"

namespace corvalis::desktop {

/// Puts the windows of the program on the screen. There is one, and it must outlive all forms.
/// It also sees to it that a disabled window gets no event from the operator.
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
  [[nodiscard]] const WindowView* ViewUnder(QObject* receiver) const;

  std::unordered_map<std::type_index, std::function<WindowView*(Window&)>> makers_;
  std::unordered_map<Window*, WindowView*> views_;
};

}  // namespace corvalis::desktop
