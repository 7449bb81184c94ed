#include "desktop/widgets/front_window.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace corvalis::desktop {

QWidget* FrontWindow(QWidget* beneath) {
  QWidget* front = beneath;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->windowHandle() == nullptr) continue;
    if (window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip) continue;
    if (front == nullptr ||
        front->windowHandle()->isAncestorOf(window->windowHandle(), QWindow::IncludeTransients)) {
      front = window;
    }
  }
  return front;
}

}  // namespace corvalis::desktop
