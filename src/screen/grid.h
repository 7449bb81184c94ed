#pragma once

#include <functional>
#include <map>
#include <string>

#include "screen/control.h"

namespace corvalis {

/// A grid that holds no data: it asks its rows by index and keeps only the edit of the current row
/// aside. When a cell is left its rule runs; when the row is left the row's rule runs, and only
/// then the edited cells are written, in the order of their columns.
class Grid : public Control {
 public:
  using Control::Control;

  std::function<int()> RowCount;
  /// The text of a cell as the data holds it.
  std::function<std::string(int row, int column)> Cell;
  /// A cell with an edit is being left: the rule may repair `text`, or return false to drop the
  /// edit of this cell.
  std::function<bool(int row, int column, std::string& text)> CellLeft;
  /// A row with edits is being left: the rule may repair the edits, or return false to keep them
  /// and stay in the row.
  std::function<bool(int row, std::map<int, std::string>& edits)> RowLeft;
  std::function<void(int row, int column, const std::string& text)> Write;
  /// Raised when another cell has become the current one.
  std::function<void()> Moved;

  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] int Column() const { return column_; }
  /// Goes to a cell by the road above. Returns false, where it was, if a rule keeps it, or if the
  /// cell does not exist; the cell and the row have then been left all the same.
  bool MoveTo(int row, int column);

  /// What the cell shows: its edit if there is one, else the data.
  [[nodiscard]] std::string Shown(int row, int column) const;
  /// The operator changes the text of the current cell.
  void TypeText(const std::string& text);
  /// Drops the edit of the current row, as ESC does.
  void DropEdit();
  /// The data has changed: the cells are asked anew.
  void Refresh() { Redraw(); }

 private:
  bool LeaveCell();
  bool LeaveRow();

  int row_ = 0;
  int column_ = 0;
  bool cell_edited_ = false;
  std::map<int, std::string> edits_;
};

}  // namespace corvalis
