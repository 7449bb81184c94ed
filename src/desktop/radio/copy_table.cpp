#include "desktop/radio/copy_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/radio/copy.h"
#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

namespace {

constexpr Length kLeastWidth{300};
constexpr Length kWidestColumn{340};

}  // namespace

CopyTable::CopyTable(const QString& name, const QStringList& headings, int rows, QWidget* parent)
    : QTableWidget(0, static_cast<int>(headings.size()), parent),
      rows_in_view_(rows),
      widest_(static_cast<std::size_t>(headings.size())),
      limits_(widest_.size(), kWidestColumn) {
  setAccessibleName(name);
  setHorizontalHeaderLabels(headings);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kNear);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setStretchLastSection(true);
  FitColumns();
  connect(this, &QTableWidget::cellClicked, this, [this](int row, int column) {
    if (const auto* cell = item(row, column)) Copy(*this, cell->text());
  });
}

void CopyTable::Show(const std::vector<QStringList>& rows, const std::vector<bool>& loud) {
  setRowCount(static_cast<int>(rows.size()));
  bool wider = false;
  for (int row = 0; row < rowCount(); ++row) {
    const auto at = static_cast<std::size_t>(row);
    const bool stands_out = at < loud.size() && loud[at];
    for (int column = 0; column < columnCount(); ++column) {
      const QString text = rows[at].value(column);
      QTableWidgetItem* cell = item(row, column);
      if (cell == nullptr) {
        cell = new QTableWidgetItem;
        setItem(row, column, cell);
      }
      if (cell->font().bold() != stands_out) {
        cell->setFont(stands_out ? Bold(font()) : font());
        cell->setData(Qt::BackgroundRole,
                      stands_out ? QVariant(QBrush(QColor(colours::kOnAir))) : QVariant());
        cell->setData(Qt::ForegroundRole,
                      stands_out ? QVariant(QBrush(QColor(colours::kField))) : QVariant());
      }
      if (cell->text() == text) continue;
      cell->setText(text);
      cell->setToolTip(text.toHtmlEscaped());
      const int wide = QFontMetrics(Bold(font())).horizontalAdvance(text) + 2 * kNear;
      int& widest = widest_[static_cast<std::size_t>(column)];
      if (wide <= widest) continue;
      widest = wide;
      wider = true;
    }
  }
  if (wider) FitColumns();
}

void CopyTable::FitColumns() {
  for (int column = 0; column + 1 < columnCount(); ++column) {
    const auto at = static_cast<std::size_t>(column);
    const QString title = horizontalHeaderItem(column)->text();
    const int heading = QFontMetrics(Bold(font())).horizontalAdvance(title) + 2 * kNear;
    setColumnWidth(column, std::max(heading, std::min(limits_[at], widest_[at])));
  }
}

void CopyTable::Limit(int column, int width) {
  limits_.at(static_cast<std::size_t>(column)) = width;
  FitColumns();
}

QSize CopyTable::sizeHint() const {
  const int head = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sizeHint().height();
  return {kLeastWidth, head + rows_in_view_ * verticalHeader()->defaultSectionSize() +
                           2 * frameWidth() + kTight};
}

QSize CopyTable::minimumSizeHint() const { return sizeHint(); }

void CopyTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    if (const auto* cell = currentItem()) Copy(*this, cell->text());
    return;
  }
  QTableWidget::keyPressEvent(event);
}

}  // namespace corvalis::desktop
