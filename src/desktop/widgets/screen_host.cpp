#include "desktop/widgets/screen_host.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QWindow>

namespace corvalis::desktop {

QtScreenHost::QtScreenHost() {
  Window::SetHost(this);
  qApp->installEventFilter(this);
}

QtScreenHost::~QtScreenHost() {
  Window::SetHost(nullptr);
  for (const auto& [window, view] : views_) delete view;
}

void QtScreenHost::Shown(Window& window) {
  WindowView*& view = views_[&window];
  if (view == nullptr) {
    const auto maker = makers_.find(window.FormType());
    if (maker == makers_.end()) {
      views_.erase(&window);
      return;
    }
    view = maker->second(window);
  }
  const auto owner = views_.find(window.OwnerWindow());
  view->Present(owner == views_.end() ? nullptr : owner->second);
}

void QtScreenHost::Gone(Window& window) {
  const auto found = views_.find(&window);
  if (found == views_.end()) return;
  found->second->Leave();
  views_.erase(found);
}

const WindowView* QtScreenHost::ViewUnder(QObject* receiver) const {
  if (receiver->isWindowType()) {
    for (const auto& [window, view] : views_) {
      if (view->windowHandle() == receiver) return view;
    }
    return nullptr;
  }
  if (!receiver->isWidgetType()) return nullptr;
  for (auto* widget = static_cast<QWidget*>(receiver); widget != nullptr;
       widget = widget->parentWidget()) {
    if (const auto* view = dynamic_cast<WindowView*>(widget)) return view;
    // A box in front of a disabled window can be answered.
    if (qobject_cast<QDialog*>(widget) != nullptr) return nullptr;
  }
  return nullptr;
}

bool QtScreenHost::eventFilter(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
      const WindowView* view = ViewUnder(receiver);
      return view != nullptr && !view->TakesInput();
    }
    default:
      return false;
  }
}

}  // namespace corvalis::desktop
