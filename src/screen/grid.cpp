#include "screen/grid.h"

namespace corvalis {

bool Grid::MoveTo(int row, int column) {
  if (row == row_ && column == column_) return true;
  if (!LeaveCell()) return false;
  if (row != row_ && !LeaveRow()) return false;
  if (!RowCount || row < 0 || row >= RowCount() || column < 0) return false;
  row_ = row;
  column_ = column;
  Redraw();
  if (Moved) Moved();
  return true;
}

std::string Grid::Shown(int row, int column) const {
  if (row == row_) {
    const auto edit = edits_.find(column);
    if (edit != edits_.end()) return edit->second;
  }
  return Cell ? Cell(row, column) : std::string();
}

void Grid::TypeText(const std::string& text) {
  if (!TakesEvents() || !RowCount || row_ >= RowCount()) return;
  edits_[column_] = text;
  cell_edited_ = true;
  Redraw();
}

void Grid::DropEdit() {
  edits_.clear();
  cell_edited_ = false;
  Redraw();
}

bool Grid::LeaveCell() {
  if (!cell_edited_) return true;
  cell_edited_ = false;
  if (CellLeft && !CellLeft(row_, column_, edits_[column_])) {
    edits_.erase(column_);
    Redraw();
    return false;
  }
  return true;
}

bool Grid::LeaveRow() {
  if (edits_.empty()) return true;
  if (RowLeft && !RowLeft(row_, edits_)) return false;
  std::map<int, std::string> edits;
  edits.swap(edits_);
  for (const auto& [column, text] : edits) {
    if (Write) Write(row_, column, text);
  }
  return true;
}

}  // namespace corvalis
