#include "desktop/widgets/grid/grid_model.h"

#include <algorithm>
#include <utility>

#include "desktop/text.h"

namespace corvalis::desktop {

namespace {
constexpr QChar kSmallBox = u'\u25AF';
}  // namespace

GridModel::GridModel(Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), rows_(grid.Rows()) {}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(grid_.Columns().size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
  QString text = FromBytes(grid_.Shown(index.row(), index.column()));
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = kSmallBox;
  }
  return text;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || section < 0 || section >= columnCount()) {
    return QAbstractTableModel::headerData(section, orientation, role);
  }
  const GridColumn& column = grid_.Columns()[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return FromBytes(column.heading);
  if (role != Qt::TextAlignmentRole) return {};
  const bool button = column.kind == GridColumn::Kind::kButton;
  return QVariant::fromValue(Qt::AlignVCenter | (button ? Qt::AlignHCenter : Qt::AlignLeft));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const GridColumn& column = grid_.Columns()[static_cast<std::size_t>(index.column())];
  const Qt::ItemFlags cell = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return column.kind == GridColumn::Kind::kText ? cell | Qt::ItemIsEditable : cell;
}

void GridModel::CountRows() {
  const int rows = grid_.Rows();
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

bool GridModel::TakeHeadings() {
  std::vector<std::string> now;
  for (const GridColumn& column : grid_.Columns()) now.push_back(column.heading);
  if (now == headings_) return false;
  headings_ = std::move(now);
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  return true;
}

void GridModel::Tell(int first_row, int last_row) {
  first_row = std::max(first_row, 0);
  last_row = std::min(last_row, rows_ - 1);
  if (first_row > last_row) return;
  emit dataChanged(index(first_row, 0), index(last_row, columnCount() - 1), {Qt::DisplayRole});
}

}  // namespace corvalis::desktop
