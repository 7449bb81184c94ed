#include "desktop/widgets/windows/window_view.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/text.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/look/reading_order.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"
#include "desktop/widgets/windows/front_window.h"
#include "screen/control.h"
#include "screen/timer.h"
#include "screen/window.h"

namespace corvalis::desktop {

namespace {

constexpr int kVeilDelayMs = 400;  // what is busy for less does not flicker
constexpr int kVeilAlpha = 120;
// A timer that is faster than the eye fires several times in a row, so that a wait stays cheap.
constexpr int kFrameMs = 40;
// An ESC that comes so soon after a transfer was meant for the transfer.
constexpr int kEscapeMs = 1000;

/// Pales a window that takes no input, without a change in the controls themselves.
class Veil : public QWidget {
 public:
  explicit Veil(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QColor pale(colours::kWindow);
    pale.setAlpha(kVeilAlpha);
    QPainter(this).fillRect(rect(), pale);
  }
};

}  // namespace

WindowView::WindowView(Window& model) : model_(&model), veil_(new Veil(this)) {
  setObjectName(FromBytes(model.Name()));
  veil_delay_.setSingleShot(true);
  veil_delay_.setInterval(kVeilDelayMs);
  connect(&veil_delay_, &QTimer::timeout, this, [this] {
    veil_->setGeometry(rect());
    veil_->raise();
    veil_->show();
  });
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget* /*old*/, QWidget* now) { MoveFocus(now); });
  model.Drawn = [this] { Draw(); };
  model.RaiseAsked = [this] {
    if (!isVisible()) return;
    raise();
    activateWindow();
  };
}

WindowView::~WindowView() {
  if (model_ == nullptr) return;
  model_->Drawn = nullptr;
  model_->RaiseAsked = nullptr;
  for (const auto& [timer, clock] : timers_) timer->Drawn = nullptr;
}

bool WindowView::TakesInput() const { return model_ != nullptr && model_->Enabled(); }

void WindowView::HandOver() {
  if (TakesInput()) return;
  // Not within the event: the toolkit has not finished with this activation.
  QMetaObject::invokeMethod(
      this,
      [this] {
        QWidget* front = FrontWindow(this);
        if (TakesInput() || front == this || front->isActiveWindow()) return;
        front->raise();
        front->activateWindow();
      },
      Qt::QueuedConnection);
}

bool WindowView::ClosesOnEscape(const QWidget& focus) const {
  if (!TakesInput() || !model_->Modal() || focus.window() != this) return false;
  if (since_busy_.isValid() && !since_busy_.hasExpired(kEscapeMs)) return false;
  for (const QWidget* part = focus.parentWidget(); part != nullptr; part = part->parentWidget()) {
    if (qobject_cast<const QAbstractItemView*>(part) != nullptr) return false;
  }
  return true;
}

void WindowView::Present(QWidget* owner) {
  awaited_ = isHidden() && !TakesInput();
  awaited_owner_ = owner;
  if (!awaited_) PutUp(owner);
}

void WindowView::AwaitNoMore() {
  if (!std::exchange(awaited_, false)) return;
  // While they are hidden, parts that grow do not tell the layouts around theirs.
  for (auto* part : findChildren<QWidget*>()) part->updateGeometry();
  PutUp(awaited_owner_);
}

void WindowView::PutUp(QWidget* owner) {
  if (timers_.empty()) {
    for (Control* control : model_->Controls()) {
      auto* timer = dynamic_cast<Timer*>(control);
      if (timer == nullptr) continue;
      auto* clock = new QTimer(this);
      clock->setTimerType(Qt::PreciseTimer);
      const int ticks = std::max(kFrameMs / timer->IntervalMs(), 1);
      clock->setInterval(ticks * timer->IntervalMs());
      connect(clock, &QTimer::timeout, this, [timer, ticks] {
        for (int i = 0; i < ticks; ++i) timer->Fire();
      });
      timer->Drawn = [this] { RunTimers(); };
      timers_.emplace(timer, clock);
    }
  }
  if (!isVisible()) {
    SetReadingOrder(*this);
    // A screen that opens anew starts at its first control.
    if (model_->Focus() == nullptr && focusWidget() != nullptr) focusWidget()->clearFocus();
    if (owner != nullptr && owner->isVisible()) PlaceBefore(*owner);
  }
  setWindowTitle(FromBytes(model_->Caption()));
  GiveMnemonics(*this);
  show();
  raise();
  activateWindow();
}

void WindowView::PlaceBefore(QWidget& owner) {
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  winId();  // a window of the system must be there to be tied to the owner's
  windowHandle()->setTransientParent(owner.window()->windowHandle());
  // Not adjustSize(), which takes two thirds of a screen at most and cuts lists off on a small one.
  ensurePolished();
  QSize size = sizeHint().boundedTo(screen()->availableSize());
  if (hasHeightForWidth()) size.setHeight(heightForWidth(size.width()));
  resize(size);
  move(PlaceOver(owner.frameGeometry()));
}

QPoint WindowView::PlaceOver(const QRect& owner) const { return owner.center() - rect().center(); }

void WindowView::Leave() {
  model_ = nullptr;
  veil_delay_.stop();
  for (const auto& [timer, clock] : timers_) clock->stop();
  disconnect(qApp, nullptr, this, nullptr);
  CloseMenus();
  for (QObject* child : findChildren<QObject*>()) child->blockSignals(true);
  hide();
  deleteLater();
}

void WindowView::Draw() {
  const QString title = FromBytes(model_->Caption());
  if (windowTitle() != title) setWindowTitle(title);
  if (!model_->Visible()) {
    awaited_ = false;
    TakeDown();
  }
  if (model_->Enabled()) AwaitNoMore();
  RunTimers();
  const bool was_enabled = std::exchange(enabled_, model_->Enabled());
  if (enabled_ && !was_enabled) since_busy_.start();
  if (enabled_) {
    veil_delay_.stop();
    veil_->hide();
  } else if (!veil_delay_.isActive() && veil_->isHidden()) {
    veil_delay_.start();
  }
  ShowFocus();
}

// A window that is hidden before the window manager has put it up is put up all the same for a
// moment, and with its late activation it would keep the keyboard from whatever is in front. So the
// system's window goes, and with it all that is still on the way to it.
void WindowView::TakeDown() {
  if (isHidden()) return;
  CloseMenus();
  hide();
  if (windowHandle() != nullptr) windowHandle()->destroy();
}

// An open menu that goes without having been closed keeps the keyboard and the mouse from all.
void WindowView::CloseMenus() {
  for (auto* menu : findChildren<QMenu*>()) menu->close();
}

void WindowView::RunTimers() {
  for (const auto& [timer, clock] : timers_) {
    const bool run = timer->Enabled() && model_->Visible();
    if (run == clock->isActive()) continue;
    if (run) {
      clock->start();
    } else {
      clock->stop();
    }
  }
}

void WindowView::MoveFocus(QWidget* now) {
  if (model_ == nullptr || in_model_ || now == nullptr || now->window() != this) return;
  {
    const QScopedValueRollback<bool> guard(in_model_, true);
    model_->MoveFocus(ControlOf(*model_, now));
  }
  ShowFocus();
}

void WindowView::ShowFocus() {
  if (in_model_ || !isVisible()) return;
  QWidget* has = focusWidget();
  Control* focus = model_->Focus();
  if (focus == nullptr) {
    // The screen has come up, or has been enabled, with the keyboard somewhere already.
    Control* first = has == nullptr ? nullptr : ControlOf(*model_, has);
    if (first == nullptr || !first->TakesEvents()) return;
    const QScopedValueRollback<bool> guard(in_model_, true);
    model_->MoveFocus(first);
    return;
  }
  if (has != nullptr && ControlOf(*model_, has) == focus) return;
  if (auto* widget = findChild<QWidget*>(FromBytes(focus->Name()))) {
    widget->setFocus(Qt::OtherFocusReason);
  }
}

bool WindowView::event(QEvent* event) {
  if (event->type() != MnemonicsEvent()) return QWidget::event(event);
  QCoreApplication::removePostedEvents(this, MnemonicsEvent());  // one for many captions
  GiveMnemonics(*this);
  return true;
}

// The work of closing lets events run. Were it done within the event, a second press of the close
// box would find the window closing and end it for the toolkit, in the middle of the work.
void WindowView::closeEvent(QCloseEvent* event) {
  event->ignore();
  QMetaObject::invokeMethod(
      this, [this] { CloseModel(); }, Qt::QueuedConnection);
}

void WindowView::CloseModel() {
  if (model_ == nullptr) return;
  {
    const QScopedValueRollback<bool> guard(in_model_, true);
    model_->Close();
  }
  if (model_ != nullptr) ShowFocus();
}

// A press beside all controls, or on one that can't be used, leaves the control that has the focus,
// so that what was chosen or typed there is taken.
void WindowView::mousePressEvent(QMouseEvent* /*event*/) {
  if (model_ == nullptr) return;
  {
    const QScopedValueRollback<bool> guard(in_model_, true);
    if (!model_->MoveFocus(nullptr)) return;
  }
  if (focusWidget() != nullptr) focusWidget()->clearFocus();
}

void WindowView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  veil_->setGeometry(rect());
}

}  // namespace corvalis::desktop
