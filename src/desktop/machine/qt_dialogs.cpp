#include "desktop/machine/qt_dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QWindow>

#include "desktop/text.h"

namespace corvalis::desktop {

namespace {

QMessageBox::Icon IconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::kCritical:
      return QMessageBox::Critical;
    case BoxStyle::kWarning:
      return QMessageBox::Warning;
    case BoxStyle::kInformation:
      return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

// The window that a box belongs before: the one in use; while the person is in another program, the
// one of ours that lies before all others.
QWidget* FrontWindow() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  QWidget* front = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->windowHandle() == nullptr) continue;
    if (front == nullptr ||
        front->windowHandle()->isAncestorOf(window->windowHandle(), QWindow::IncludeTransients)) {
      front = window;
    }
  }
  return front;
}

}  // namespace

void QtDialogs::Show(const Box& box) {
  // Its owner may go, and take it along, while events run.
  const QPointer<QMessageBox> shown = new QMessageBox(
      IconOf(box.style), FromBytes(box.title), FromBytes(box.text), QMessageBox::Ok, FrontWindow());
  shown->setTextFormat(Qt::PlainText);
  shown->exec();
  delete shown.data();
}

void QtDialogs::Beep() { QApplication::beep(); }

}  // namespace corvalis::desktop
