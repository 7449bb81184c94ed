#include "desktop/drop_down_widget.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/binding.h"
#include "desktop/text.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {
constexpr int kVisibleEntries = 20;
constexpr int kPage = 10;
}  // namespace

DropDownWidget::DropDownWidget(ListBox& list, QWidget* parent, TextBox::Content content)
    : QComboBox(parent), list_(list), content_(content) {
  setMaxVisibleItems(kVisibleEntries);
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setFocusPolicy(Qt::StrongFocus);
  view()->installEventFilter(this);
  connect(this, &QComboBox::activated, this, [this](int index) { Choose(index); });
  Bind(*this, list, [this] { Draw(); });
}

void DropDownWidget::Draw() {
  const QSignalBlocker silent(this);
  if (shown_ != list_.Entries()) {
    shown_ = list_.Entries();
    QStringList entries;
    for (const std::string& entry : shown_) {
      entries << (content_ == TextBox::Content::kFileName ? FromFileName(entry) : FromBytes(entry));
    }
    clear();
    addItems(entries);
  }
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
  if (hasFocus()) QComboBox::mousePressEvent(event);
}

void DropDownWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

void DropDownWidget::keyPressEvent(QKeyEvent* event) {
  const bool alt = event->modifiers().testFlag(Qt::AltModifier);
  int to = list_.Index();
  switch (event->key()) {
    case Qt::Key_F4:
      showPopup();
      return;
    case Qt::Key_Down:
    case Qt::Key_Up:
      if (alt) {
        showPopup();
        return;
      }
      to += event->key() == Qt::Key_Down ? 1 : -1;
      break;
    case Qt::Key_PageDown:
      to += kPage;
      break;
    case Qt::Key_PageUp:
      to -= kPage;
      break;
    case Qt::Key_Home:
      to = 0;
      break;
    case Qt::Key_End:
      to = list_.Count() - 1;
      break;
    default:
      if (const int key = KeyCode(*event); key != kKeyCancelled) {
        list_.TypeKey(key);
      } else {
        event->ignore();
      }
      return;
  }
  to = std::clamp(to, 0, std::max(list_.Count() - 1, 0));
  if (to != list_.Index()) Choose(to);
}

bool DropDownWidget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view() && event->type() == QEvent::KeyPress) {
    const auto& struck = *static_cast<QKeyEvent*>(event);
    const int key = KeyCode(struck);
    const bool chooses = struck.key() == Qt::Key_Return || struck.key() == Qt::Key_Enter ||
                         struck.key() == Qt::Key_Escape;
    if (key != kKeyCancelled && !chooses) {
      list_.TypeKey(key);
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

}  // namespace corvalis::desktop
