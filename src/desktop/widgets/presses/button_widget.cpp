#include "desktop/widgets/presses/button_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/text.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/windows/binding.h"
#include "screen/keys.h"

namespace corvalis::desktop {

ButtonWidget::ButtonWidget(Button& button, QWidget* parent) : QPushButton(parent), button_(button) {
  setAutoDefault(false);
  Bind(*this, button, [this] {
    const QString caption = FromBytes(button_.Caption());
    if (PlainCaption(text()) == caption) return;
    ShowCaption(*this, caption);
    for (QWidget* sibling : parentWidget()->findChildren<QPushButton*>()) sibling->updateGeometry();
  });
  connect(this, &QPushButton::clicked, this, [this] { button_.Press(); });
}

QSize ButtonWidget::sizeHint() const {
  QSize size = QPushButton::sizeHint();
  for (const auto* sibling :
       parentWidget()->findChildren<QPushButton*>(Qt::FindDirectChildrenOnly)) {
    if (!sibling->isHidden()) size = size.expandedTo(sibling->QPushButton::sizeHint());
  }
  return size;
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
  // The press brings the focus first. Where the control left has taken it back, it ends here.
  if (HasKeyboard(*this)) QPushButton::mousePressEvent(event);
}

void ButtonWidget::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->isAutoRepeat() && (enter || event->key() == Qt::Key_Escape)) return;
  if (const int key = KeyCode(*event); key != kKeyCancelled) button_.TypeKey(key);
  if (enter) {
    click();
  } else {
    QPushButton::keyPressEvent(event);
  }
}

}  // namespace corvalis::desktop
