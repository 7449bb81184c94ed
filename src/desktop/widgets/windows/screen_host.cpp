#include "desktop/widgets/windows/screen_host.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QTableView>
#include <QWindow>
#include <algorithm>

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/windows/front_window.h"

namespace corvalis::desktop {

namespace {

// What is typed in a grid and not written goes before its screen does, wherever the keyboard is.
bool EscapesGrid(const WindowView& view) {
  const auto tables = view.findChildren<QTableView*>();
  return std::any_of(tables.begin(), tables.end(), [](QTableView* table) {
    auto* grid = dynamic_cast<GridWidget*>(table);
    return grid != nullptr && grid->isVisible() && grid->Escape();
  });
}

}  // namespace

QtScreenHost::QtScreenHost() {
  Window::SetHost(this);
  qApp->installEventFilter(this);
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState now) {
    if (now != Qt::ApplicationActive) held_keys_.Away();
  });
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

WindowView* QtScreenHost::ViewUnder(QObject* receiver) const {
  if (receiver->isWindowType()) {
    for (const auto& [window, view] : views_) {
      if (view->windowHandle() == receiver) return view;
    }
    return nullptr;
  }
  if (!receiver->isWidgetType()) return nullptr;
  for (auto* widget = static_cast<QWidget*>(receiver); widget != nullptr;
       widget = widget->parentWidget()) {
    if (auto* view = dynamic_cast<WindowView*>(widget)) return view;
    // A box in front of a disabled window can be answered.
    if (qobject_cast<QDialog*>(widget) != nullptr) return nullptr;
  }
  return nullptr;
}

bool QtScreenHost::Swallowed(QWindow& window, QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return KeyHandled(window, static_cast<QKeyEvent&>(event));
    case QEvent::MouseButtonPress:
      last_pressed_ = &window;
      return false;
    case QEvent::MouseButtonDblClick:
      return last_pressed_ != &window && ViewUnder(&window) != nullptr;
    default:
      return false;
  }
}

bool QtScreenHost::KeyHandled(QWindow& window, QKeyEvent& event) {
  if (!event.spontaneous()) return false;  // told below
  QWindow* to = &window;
  if (WindowView* view = ViewUnder(&window); view != nullptr && !view->TakesInput()) {
    to = FrontWindow(view)->windowHandle();  // what has not been given the keyboard yet
  }
  const bool repeats = held_keys_.Repeats(event);
  if (to == &window && (event.isAutoRepeat() || !repeats)) return false;
  QKeyEvent told(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                 event.nativeVirtualKey(), event.nativeModifiers(), event.text(),
                 repeats || event.isAutoRepeat(), static_cast<quint16>(event.count()));
  told.setTimestamp(event.timestamp());
  if (ViewUnder(to) == nullptr || ViewUnder(to)->TakesInput()) {
    QCoreApplication::sendEvent(to, &told);
  }
  event.setAccepted(told.isAccepted());
  return true;
}

bool QtScreenHost::KeyOfWindow(WindowView& view, const QWidget& focus, QKeyEvent& event) {
  const bool press = event.type() == QEvent::KeyPress;
  const bool acts = press && !event.isAutoRepeat();
  if (event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier) {
    if (!press || !view.ClosesOnEscape(focus)) return false;
    if (acts && !EscapesGrid(view)) view.close();
    return true;
  }
  if (focus.window() != &view || !IsMnemonic(view, event)) return false;
  event.accept();  // before the toolkit's own shortcuts, which know no key that is held
  if (acts) PressMnemonic(view, event);
  return true;
}

bool QtScreenHost::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver->isWindowType() && Swallowed(*static_cast<QWindow*>(receiver), *event)) return true;
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
      WindowView* view = ViewUnder(receiver);
      if (view == nullptr) return false;
      if (!view->TakesInput()) return true;
      const bool key =
          event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
      return key && receiver->isWidgetType() &&
             KeyOfWindow(*view, *static_cast<QWidget*>(receiver), *static_cast<QKeyEvent*>(event));
    }
    case QEvent::WindowActivate:
      if (auto* view = dynamic_cast<WindowView*>(receiver)) view->HandOver();
      return false;
    default:
      return false;
  }
}

}  // namespace corvalis::desktop
