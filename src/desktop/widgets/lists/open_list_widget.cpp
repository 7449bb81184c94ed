#include "desktop/widgets/lists/open_list_widget.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>

#include "desktop/text.h"
#include "desktop/widgets/lists/list_keys.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {
constexpr int kRows = 8;
constexpr Length kLeastWidth{180};
constexpr qsizetype kIndent = 3;  // blanks per depth

/// Draws entries as wide as the list, and shows in a tip what finds no room there.
class NameDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip ||
        QStyledItemDelegate::sizeHint(option, index).width() <= option.rect.width()) {
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    // Escaped, lest a name is taken for markup.
    const QString name = Qt::convertFromPlainText(index.data().toString().trimmed());
    QToolTip::showText(event->globalPos(), name, view, option.rect);
    return true;
  }
};

}  // namespace

OpenListWidget::OpenListWidget(ListBox& list, QWidget* parent, TextBox::Content content)
    : QListWidget(parent), list_(list), content_(content) {
  setUniformItemSizes(true);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setTextElideMode(Qt::ElideNone);
  Bind(*this, list, [this] { Draw(); });
  FollowScheme(*this, [this] { ShowSelection(); });
}

void OpenListWidget::ShowOnly() {
  choosing_ = false;
  setSelectionMode(QAbstractItemView::NoSelection);
}

QSize OpenListWidget::sizeHint() const {
  const int row = fontMetrics().height() + kNear;
  const int wide = sizeHintForColumn(0) + 2 * kGap + verticalScrollBar()->sizeHint().width();
  return {qBound<int>(kLeastWidth, wide, 2 * kLeastWidth), kRows * row + 2 * frameWidth()};
}

QString OpenListWidget::Shown(const std::string& entry) const {
  return Harmless(FromContent(entry, content_));
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

FileListWidget::FileListWidget(ListBox& files, QWidget* parent)
    : OpenListWidget(files, parent, TextBox::Content::kFileName), files_(files) {
  CallByWord(*this, Wording("Files"));
  setTextElideMode(Qt::ElideMiddle);
  setItemDelegate(new NameDelegate(this));
}

QSize FileListWidget::sizeHint() const {
  return {kLeastWidth, OpenListWidget::sizeHint().height()};
}

QSize FileListWidget::minimumSizeHint() const {
  return {kLeastWidth, OpenListWidget::minimumSizeHint().height()};
}

void FileListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !hasFocus()) return;
  if (const auto* pressed = itemAt(event->position().toPoint())) files_.Open(row(pressed));
}

void FileListWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    files_.Open(files_.Index());
    return;
  }
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (command || event->text().isEmpty() || !event->text()[0].isPrint()) {
    OpenListWidget::keyPressEvent(event);
    return;
  }
  if (!since_typed_.isValid() || since_typed_.hasExpired(QApplication::keyboardInputInterval())) {
    typed_.clear();
  }
  since_typed_.start();
  typed_ += event->text();
  for (int i = 0; i < files_.Count(); ++i) {
    if (!FromFileName(files_.Entry(i)).startsWith(typed_, Qt::CaseInsensitive)) continue;
    if (i != files_.Index()) files_.Choose(i);
    return;
  }
}

DirListWidget::DirListWidget(DirList& list, QWidget* parent)
    : FileListWidget(list, parent), list_(list) {
  CallByWord(*this, Wording("Folders"));
  Draw();
}

void DirListWidget::Dress(QListWidgetItem& item, int index) {
  const QString indent(list_.Depth(index) * kIndent, u' ');
  const QString name = indent + Shown(list_.Entry(index));
  if (item.text() != name) item.setText(name);
  item.setFont(index == list_.Here() ? Bold(font()) : font());
}

}  // namespace corvalis::desktop
