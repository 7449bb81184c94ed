#include "desktop/widgets/grid/grid_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {
constexpr int kRows = 12;  // that a table would like to show, and that it needs
constexpr int kLeastRows = 4;
constexpr int kLeastWidth = 320;
}  // namespace

GridWidget::GridWidget(Grid& grid, QWidget* parent, const std::optional<Wording>& heading)
    : QTableView(parent),
      grid_(grid),
      model_(new GridModel(grid, this)),
      delegate_(new GridDelegate(grid, this)) {
  delegate_->KeyInEditor = [this](QKeyEvent& key) { return MovedByKey(key); };
  setModel(model_);
  setItemDelegate(delegate_);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::NoSelection);
  setAutoScroll(false);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
  // The frame shows the keyboard's presence in the open cell too.
  connect(qApp, &QApplication::focusChanged, this, [this] { QWidget::update(); });
  setAccessibleName(FromBytes(grid.Caption()));
  if (heading && grid.Caption().empty()) CallByWord(*this, *heading);
  FitFont();
  Bind(*this, grid, [this] { Draw(); });
}

void GridWidget::FitFont() {
  delegate_->SetFont(font());
  horizontalHeader()->setFont(delegate_->HeadingFont());
  verticalHeader()->setMinimumSectionSize(delegate_->RowHeight());
  verticalHeader()->setDefaultSectionSize(delegate_->RowHeight());
  natural_width_ = 0;
  for (int column = 0; column < model_->columnCount(); ++column) {
    setColumnWidth(column, delegate_->ColumnWidth(column));
    natural_width_ += columnWidth(column);
  }
  FillWidth();
  updateGeometry();
}

// The widest column, which is that of the words, takes the room that is left.
void GridWidget::FillWidth() {
  const auto& columns = grid_.Columns();
  const auto words =
      std::max_element(columns.begin(), columns.end(),
                       [](const GridColumn& a, const GridColumn& b) { return a.width < b.width; });
  const auto column = static_cast<int>(words - columns.begin());
  const int left = std::max(viewport()->width() - natural_width_, 0);
  setColumnWidth(column, delegate_->ColumnWidth(column) + left);
}

QSize GridWidget::sizeHint() const {
  const int width = natural_width_ + verticalScrollBar()->sizeHint().width();
  const int height = horizontalHeader()->sizeHint().height() + kRows * delegate_->RowHeight();
  return QSize(width, height) + QSize(2 * frameWidth(), 2 * frameWidth());
}

QSize GridWidget::minimumSizeHint() const {
  const QSize whole = sizeHint();
  const int fewer = (kRows - kLeastRows) * delegate_->RowHeight();
  return {std::min(whole.width(), kLeastWidth), whole.height() - fewer};
}

QRect GridWidget::CellRect(int row, int column) const {
  const QRect cell = visualRect(model_->index(row, column)) & viewport()->rect();
  return cell.isEmpty() ? QRect() : cell.translated(viewport()->pos());
}

int GridWidget::RowsInView() const {
  return std::max(viewport()->height() / delegate_->RowHeight(), 1);
}

bool GridWidget::Active() const {
  return hasFocus() || (editing_.isValid() && isAncestorOf(QApplication::focusWidget()));
}

// The grid may change many times between two frames: nothing is built anew for that.
void GridWidget::Draw() {
  CloseEditor();
  model_->CountRows();
  if (model_->TakeHeadings()) FitFont();
  if (verticalScrollBar()->value() != grid_.FirstRow()) {
    const QScopedValueRollback<bool> guard(arranging_, true);
    verticalScrollBar()->setValue(grid_.FirstRow());
  }
  DrawCurrent();
  OpenEditor();
  if (isVisible()) model_->Tell(grid_.FirstRow(), grid_.FirstRow() + RowsInView());
}

void GridWidget::DrawCurrent() {
  const QModelIndex current = model_->index(grid_.Row(), grid_.Column());
  if (current == currentIndex() && selectionModel()->isRowSelected(grid_.Row())) return;
  // Nothing is drawn as selected; a screen reader tells the row by it.
  selectionModel()->setCurrentIndex(
      current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (!current.isValid() || !isVisible()) return;
  const QRect cell = visualRect(current);
  QScrollBar& sideways = *horizontalScrollBar();
  if (cell.left() < 0) {
    sideways.setValue(sideways.value() + cell.left());
  } else if (cell.right() >= viewport()->width()) {
    const int beyond = cell.right() - viewport()->width() + 1;
    sideways.setValue(sideways.value() + std::min(beyond, cell.left()));
  }
}

QModelIndex GridWidget::OpenedCell() const {
  return grid_.Opened() ? model_->index(grid_.Row(), grid_.Column()) : QModelIndex();
}

void GridWidget::CloseEditor() {
  if (!editing_.isValid() || editing_ == OpenedCell()) return;
  const QModelIndex closed = std::exchange(editing_, QPersistentModelIndex());
  // Lest the toolkit looks for another place for the keyboard.
  const QScopedValueRollback<bool> guard(passing_, true);
  if (isAncestorOf(QApplication::focusWidget())) setFocus(Qt::OtherFocusReason);
  closePersistentEditor(closed);
}

void GridWidget::OpenEditor() {
  const QModelIndex open = OpenedCell();
  if (editing_.isValid() || !open.isValid()) return;
  editing_ = open;
  // The toolkit selects all of the text.
  TextBox& editor = grid_.Editor();
  const int start = editor.SelStart();
  const int length = editor.SelLength();
  openPersistentEditor(open);
  editor.Select(start, length);
  GiveKeyboardToEditor();
}

void GridWidget::GiveKeyboardToEditor() {
  if (!hasFocus() || passing_ || !editing_.isValid()) return;
  if (QWidget* editor = indexWidget(editing_)) editor->setFocus(Qt::OtherFocusReason);
}

void GridWidget::TellView() {
  if (!arranging_ && isVisible()) grid_.SetView(verticalScrollBar()->value(), RowsInView());
}

void GridWidget::updateGeometries() {
  {
    const QScopedValueRollback<bool> guard(arranging_, true);
    QTableView::updateGeometries();
    verticalScrollBar()->setValue(grid_.FirstRow());
  }
  TellView();
  if (Arranged) Arranged();
}

void GridWidget::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  TellView();
  if (Arranged) Arranged();
}

void GridWidget::resizeEvent(QResizeEvent* event) {
  FillWidth();
  QTableView::resizeEvent(event);
}

void GridWidget::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  updateGeometries();
  Draw();
}

void GridWidget::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitFont();
}

void GridWidget::initViewItemOption(QStyleOptionViewItem* option) const {
  QTableView::initViewItemOption(option);
  option->state.setFlag(QStyle::State_HasFocus, Active());
}

// A window that has been left outlives its grid for a moment, and is silent from then on.
void GridWidget::timerEvent(QTimerEvent* event) {
  if (!signalsBlocked()) QTableView::timerEvent(event);
}

bool GridWidget::event(QEvent* event) {
  // ESC belongs to the grid as long as there is something to drop, whatever waits for it.
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && grid_.HasEdits()) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

bool GridWidget::MovedAlongRow(const QKeyEvent& event) {
  if (grid_.Opened()) return false;
  const bool whole = event.modifiers().testFlag(Qt::ControlModifier);
  const int last = model_->columnCount() - 1;
  int row = grid_.Row();
  int column = grid_.Column();
  switch (event.key()) {
    case Qt::Key_Left:
      --column;
      break;
    case Qt::Key_Right:
      ++column;
      break;
    case Qt::Key_Home:
      column = 0;
      if (whole) row = 0;
      break;
    case Qt::Key_End:
      column = last;
      if (whole) row = grid_.Rows() - 1;
      break;
    default:
      return false;
  }
  grid_.MoveTo(row, std::clamp(column, 0, last));
  return true;
}

bool GridWidget::MovedByKey(const QKeyEvent& event) {
  int row = grid_.Row();
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      Tab(event);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      grid_.Enter();
      return true;
    case Qt::Key_Escape:
      // Held down, it drops the cell alone, and not the row and the window after it.
      return event.isAutoRepeat() || grid_.Escape();
    case Qt::Key_F2:
      grid_.OpenCell();
      return true;
    case Qt::Key_Down:
      ++row;
      break;
    case Qt::Key_Up:
      --row;
      break;
    case Qt::Key_PageDown:
      row += RowsInView();
      break;
    case Qt::Key_PageUp:
      row -= RowsInView();
      break;
    default:
      return MovedAlongRow(event);
  }
  grid_.MoveTo(std::clamp(row, 0, std::max(grid_.Rows() - 1, 0)), grid_.Column());
  return true;
}

// With Ctrl it goes on to the next control from any cell.
void GridWidget::Tab(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool forward = event.key() == Qt::Key_Tab && !modifiers.testFlag(Qt::ShiftModifier);
  if (!modifiers.testFlag(Qt::ControlModifier) && grid_.Tab(forward)) return;
  const QScopedValueRollback<bool> guard(passing_, true);
  // The open cell comes behind the table in the order of Tab.
  if (!forward) setFocus(Qt::OtherFocusReason);
  QAbstractScrollArea::focusNextPrevChild(forward);  // NOLINT(bugprone-parent-virtual-call)
}

void GridWidget::Strike(const QString& characters) { grid_.Type(KnownBytes(characters)); }

void GridWidget::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (MovedByKey(*event)) return;
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool printable = !event->text().isEmpty() && event->text()[0].isPrint();
  const QModelIndex current = currentIndex();
  const bool button =
      current.isValid() && (current.flags() & Qt::ItemIsEditable) == Qt::NoItemFlags;
  if (event->matches(QKeySequence::Copy)) {
    if (current.isValid()) {
      QApplication::clipboard()->setText(FromBytes(grid_.Shown(current.row(), current.column())));
    }
  } else if (event->matches(QKeySequence::Paste)) {
    grid_.Paste(KnownBytes(OneLine(QApplication::clipboard()->text())));
  } else if (event->key() == Qt::Key_Delete && !command) {
    grid_.Clear();
  } else if (KeyCode(*event) == kKeyBackspace) {
    grid_.TypeKey(kKeyBackspace);
  } else if (printable && !command) {
    // A key that is held down presses a button once.
    if (!button || !event->isAutoRepeat()) Strike(event->text());
  } else {
    event->ignore();
  }
}

void GridWidget::inputMethodEvent(QInputMethodEvent* event) {
  Strike(OneLine(event->commitString()));
  event->accept();
}

void GridWidget::Press(const QModelIndex& cell) {
  pressed_ = cell;
  if (cell.isValid()) grid_.Press(cell.row(), cell.column());
  GiveKeyboardToEditor();
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
  pressed_at_ = event->position().toPoint();
  // Without the focus the press is void: the control left has taken it back.
  const bool presses = event->button() == Qt::LeftButton && Active();
  Press(presses ? indexAt(pressed_at_) : QModelIndex());
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  // The first press may have scrolled another row to this place.
  const QPoint away = event->position().toPoint() - pressed_at_;
  const bool second = away.manhattanLength() <= QApplication::startDragDistance();
  if (second && pressed_.isValid() && event->button() == Qt::LeftButton && Active()) {
    Press(pressed_);
  } else {
    mousePressEvent(event);
  }
}

void GridWidget::mouseMoveEvent(QMouseEvent* /*event*/) {
  // A drag selects nothing.
}

void GridWidget::mouseReleaseEvent(QMouseEvent* /*event*/) {}

void GridWidget::wheelEvent(QWheelEvent* event) {
  pressed_ = QModelIndex();
  QTableView::wheelEvent(event);
}

void GridWidget::focusInEvent(QFocusEvent* event) {
  // Not the base's: it would make a cell current that the grid has not.
  QAbstractScrollArea::focusInEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  GiveKeyboardToEditor();
  update();
  viewport()->update();
}

void GridWidget::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  update();
  viewport()->update();
}

}  // namespace corvalis::desktop
