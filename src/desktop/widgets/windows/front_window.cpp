#include "desktop/widgets/windows/front_window.h"

#include <QApplication>
#include <QMessageBox>
#include <QWidget>
#include <QWindow>

#include "desktop/widgets/windows/guide_window.h"

namespace corvalis::desktop {

namespace {

bool IsGuide(const QWidget* window) { return dynamic_cast<const GuideWindow*>(window) != nullptr; }

}  // namespace

QWidget* FrontWindow(QWidget* beneath) {
  QWidget* front = IsGuide(beneath) ? nullptr : beneath;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->windowHandle() == nullptr) continue;
    if (IsGuide(window) || window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip)
      continue;
    if (front == nullptr ||
        front->windowHandle()->isAncestorOf(window->windowHandle(), QWindow::IncludeTransients)) {
      front = window;
    }
  }
  return front;
}

QMessageBox* StandingBox() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* box = qobject_cast<QMessageBox*>(window);
    if (box != nullptr && box->isVisible()) return box;
  }
  return nullptr;
}

}  // namespace corvalis::desktop
