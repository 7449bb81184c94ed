#include "desktop/widgets/open_list_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "desktop/text.h"
#include "desktop/widgets/binding.h"
#include "desktop/widgets/list_keys.h"
#include "desktop/widgets/style.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {
constexpr int kRows = 8;
constexpr int kLeastWidth = 180;
constexpr qsizetype kIndent = 3;  // blanks per depth
}  // namespace

OpenListWidget::OpenListWidget(ListBox& list, QWidget* parent, TextBox::Content content)
    : QListWidget(parent), list_(list), content_(content) {
  setUniformItemSizes(true);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setTextElideMode(Qt::ElideNone);
  Bind(*this, list, [this] { Draw(); });
  ShowSelection();
}

void OpenListWidget::ShowOnly() {
  choosing_ = false;
  setSelectionMode(QAbstractItemView::NoSelection);
}

QSize OpenListWidget::sizeHint() const {
  const int row = fontMetrics().height() + kNear;
  const int wide = sizeHintForColumn(0) + 2 * kGap + verticalScrollBar()->sizeHint().width();
  return {qBound(kLeastWidth, wide, 2 * kLeastWidth), kRows * row + 2 * frameWidth()};
}

QString OpenListWidget::Shown(const std::string& entry) const {
  return FromContent(entry, content_);
}

void OpenListWidget::Draw() {
  if (const int changed = ReplacedEntry(shown_, list_.Entries()); changed != ListBox::kNone) {
    item(changed)->setText(Shown(list_.Entry(changed)));
  } else if (shown_ != list_.Entries()) {
    QStringList entries;
    for (const std::string& entry : list_.Entries()) entries << Shown(entry);
    clear();
    addItems(entries);
  }
  shown_ = list_.Entries();
  for (int i = 0; i < count(); ++i) Dress(*item(i), i);
  if (currentRow() != list_.Index()) setCurrentRow(list_.Index());
}

void OpenListWidget::Dress(QListWidgetItem& /*item*/, int /*index*/) {}

void OpenListWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (event->button() != Qt::LeftButton || !hasFocus() || !choosing_) return;
  if (const auto* pressed = itemAt(event->position().toPoint())) list_.Choose(row(pressed));
}

void OpenListWidget::mouseMoveEvent(QMouseEvent* /*event*/) {
  // A drag chooses nothing.
}

void OpenListWidget::keyPressEvent(QKeyEvent* event) {
  const int to = EntryByKey(list_, *event);
  if (to != ListBox::kNone && !list_.PointerOnly()) {
    if (!choosing_) {
      // Past the base, which would choose.
      QAbstractScrollArea::keyPressEvent(event);  // NOLINT(bugprone-parent-virtual-call)
    } else if (to != list_.Index()) {
      list_.Choose(to);
    }
  } else if (const int key = KeyCode(*event); key != kKeyCancelled) {
    list_.TypeKey(key);
  } else if (!list_.PointerOnly()) {
    event->ignore();
  }
}

void OpenListWidget::focusInEvent(QFocusEvent* event) {
  // Not the base's: it would make an entry current that the list does not have selected.
  QAbstractScrollArea::focusInEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  ShowSelection();
}

void OpenListWidget::ShowSelection() {
  QPalette palette = parentWidget()->palette();
  if (!hasFocus()) {
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      palette.setColor(group, QPalette::Highlight, QColor(colours::kPressed));
      palette.setColor(group, QPalette::HighlightedText, QColor(colours::kText));
    }
  }
  setPalette(palette);
  update();
}

void OpenListWidget::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  ShowSelection();
}

DirListWidget::DirListWidget(DirList& list, QWidget* parent)
    : OpenListWidget(list, parent, TextBox::Content::kFileName), list_(list) {
  Draw();
}

void DirListWidget::Dress(QListWidgetItem& item, int index) {
  const QString indent(list_.Depth(index) * kIndent, u' ');
  const QString name = indent + FromFileName(list_.Entry(index));
  if (item.text() != name) item.setText(name);
  item.setFont(index == list_.Here() ? Bold(font()) : font());
}

void DirListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !hasFocus()) return;
  if (const auto* pressed = itemAt(event->position().toPoint())) list_.Open(row(pressed));
}

void DirListWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    list_.Open(list_.Index());
  } else {
    OpenListWidget::keyPressEvent(event);
  }
}

}  // namespace corvalis::desktop
