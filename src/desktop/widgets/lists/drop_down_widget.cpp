#include "desktop/widgets/lists/drop_down_widget.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <QWindow>

#include "desktop/text.h"
#include "desktop/widgets/lists/list_keys.h"
#include "desktop/widgets/windows/binding.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {
constexpr int kVisibleEntries = 20;
}  // namespace

DropDownWidget::DropDownWidget(ListBox& list, QWidget* parent, TextBox::Content content)
    : QComboBox(parent), list_(list), content_(content) {
  setMaxVisibleItems(kVisibleEntries);
  setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
  setFocusPolicy(Qt::StrongFocus);
  view()->installEventFilter(this);
  connect(this, &QComboBox::activated, this, [this](int index) { Choose(index); });
  Bind(*this, list, [this] { Draw(); });
}

QString DropDownWidget::Shown(const std::string& entry) const {
  return Harmless(FromContent(entry, content_));
}

void DropDownWidget::Draw() {
  const QSignalBlocker silent(this);
  if (const int changed = ReplacedEntry(shown_, list_.Entries()); changed != ListBox::kNone) {
    setItemText(changed, Shown(list_.Entry(changed)));
  } else if (shown_ != list_.Entries()) {
    QStringList entries;
    for (const std::string& entry : list_.Entries()) entries << Shown(entry);
    clear();
    addItems(entries);
    // Counts the width anew. With the first policy alone the toolkit would give the list its width
    // a moment later, whatever the place that the layout has for it.
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
  }
  shown_ = list_.Entries();
  if (currentIndex() != list_.Index()) {
    setCurrentIndex(list_.Index());
    update();
  }
}

void DropDownWidget::Choose(int index) {
  list_.Choose(index);
  Draw();
}

void DropDownWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (HasKeyboard(*this)) QComboBox::mousePressEvent(event);
}

void DropDownWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

bool DropDownWidget::MovedByKey(const QKeyEvent& event) {
  const bool arrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
  if (event.key() == Qt::Key_F4 || (arrow && event.modifiers().testFlag(Qt::AltModifier))) {
    showPopup();
    return true;
  }
  const int to = EntryByKey(list_, event);
  if (to == ListBox::kNone) return false;
  if (to != list_.Index()) Choose(to);
  return true;
}

void DropDownWidget::keyPressEvent(QKeyEvent* event) {
  if (!list_.PointerOnly() && MovedByKey(*event)) return;
  if (const int key = KeyCode(*event); key != kKeyCancelled) {
    list_.TypeKey(key);
  } else if (!list_.PointerOnly()) {
    event->ignore();
  }
}

bool DropDownWidget::TakenInPopup(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
    hidePopup();
    focusNextPrevChild(event.key() == Qt::Key_Tab);
    return true;
  }
  if (event.key() == Qt::Key_Escape) return false;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (enter && !list_.PointerOnly()) return false;
  const int key = KeyCode(event);
  if (key != kKeyCancelled) list_.TypeKey(key);
  return key != kKeyCancelled || list_.PointerOnly();
}

void DropDownWidget::showPopup() {
  QComboBox::showPopup();
  view()->window()->installEventFilter(this);
}

void DropDownWidget::setVisible(bool visible) {
  // The open list has the keyboard: it must give it back before the toolkit looks who is next.
  if (!visible) hidePopup();
  QComboBox::setVisible(visible);
}

bool DropDownWidget::PressedBeside(const QMouseEvent& event) {
  const QPointF at = event.globalPosition();
  QWidget* popup = view()->window();
  const auto in = [&at](const QWidget& widget) {
    return widget.rect().contains(widget.mapFromGlobal(at.toPoint()));
  };
  if (in(*popup) || in(*this)) return false;
  popup->setAttribute(Qt::WA_NoMouseReplay);  // where the toolkit would do the rest itself
  hidePopup();
  if (!in(*window())) return true;
  const QPointF there = window()->mapFromGlobal(at);
  QWidget* hit = window()->childAt(there.toPoint());
  while (hit != nullptr && (hit->focusPolicy() & Qt::ClickFocus) == 0) hit = hit->parentWidget();
  if (hit != nullptr && hit->isEnabled()) hit->setFocus(Qt::MouseFocusReason);
  QCoreApplication::postEvent(
      window()->windowHandle(),
      new QMouseEvent(event.type(), there, at, event.button(), event.buttons(), event.modifiers()));
  return true;
}

bool DropDownWidget::eventFilter(QObject* watched, QEvent* event) {
  // One press, though a list stands open: it closes, and what was pressed is pressed.
  if (watched == view()->window() && event->type() == QEvent::MouseButtonPress &&
      PressedBeside(*static_cast<QMouseEvent*>(event))) {
    return true;
  }
  if (watched == view() && event->type() == QEvent::KeyPress &&
      TakenInPopup(*static_cast<QKeyEvent*>(event))) {
    return true;
  }
  // The popup chooses at this event already, before the key itself.
  if (watched == view() && event->type() == QEvent::ShortcutOverride && list_.PointerOnly()) {
    event->accept();
    return true;
  }
  return QComboBox::eventFilter(watched, event);
}

}  // namespace corvalis::desktop
