#include "desktop/widgets/windows/binding.h"

#include <QPointer>
#include <QTextDocument>
#include <QWidget>
#include <utility>

#include "desktop/text.h"
#include "desktop/widgets/look/mnemonics.h"
#include "screen/control.h"
#include "screen/window.h"

namespace corvalis::desktop {

namespace {

/// A tip that the toolkit would take for markup is escaped, so that every tip shows as it stands.
QString PlainTip(const QString& tip) {
  return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

}  // namespace

void Bind(QWidget& widget, Control& control, std::function<void()> draw) {
  widget.setObjectName(FromBytes(control.Name()));
  control.Drawn = [guard = QPointer<QWidget>(&widget), &control, draw = std::move(draw)] {
    if (!guard) return;
    const QString tip = PlainTip(FromBytes(control.ToolTip()));
    if (guard->toolTip() != tip) guard->setToolTip(tip);
    guard->setEnabled(control.Enabled());
    ShowOrHide(*guard, control.Visible());
    draw();
  };
  control.Drawn();
}

bool HasKeyboard(const QWidget& widget) { return widget.window()->focusWidget() == &widget; }

Control* ControlOf(const Window& window, const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (widget->objectName().isEmpty()) continue;
    if (Control* control = window.Find(ToBytes(widget->objectName()))) return control;
  }
  return nullptr;
}

}  // namespace corvalis::desktop
