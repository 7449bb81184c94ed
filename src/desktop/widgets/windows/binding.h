#pragma once

#include <functional>

class QWidget;

namespace corvalis {
class Control;
class Window;
}  // namespace corvalis

namespace corvalis::desktop {

/// Makes `widget` the picture of `control`: the widget takes its name, and from now on shows its
/// tool-tip, enabled and visible; then it calls `draw` for what else there is to be seen. `draw`
/// runs at once and after each change of the control, while the widget lives.
///
/// `widget` must have a parent, or it would come up as a window.
void Bind(QWidget& widget, Control& control, std::function<void()> draw);

/// True if `widget` has the keyboard of its own window, whatever has the screen's: an open menu, or
/// another window, takes that for a while. A press that brings the focus first is void without it,
/// as the control left has then taken the keyboard back.
[[nodiscard]] bool HasKeyboard(const QWidget& widget);

/// The control of `window` that `widget`, or whatever of its parents, is the picture of; null if
/// none.
[[nodiscard]] Control* ControlOf(const Window& window, const QWidget* widget);

}  // namespace corvalis::desktop
