#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "screen/control.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// One column of a grid.
struct GridColumn {
  enum class Kind {
    kShown,   ///< the operator only reads it
    kText,    ///< opened and typed into
    kButton,  ///< pressed; the form says what that does
  };

  std::string heading = {};
  Kind kind = Kind::kShown;
  int width = 8;             ///< characters that it has room for
  int max_length = 0;        ///< bytes that an open cell holds; 0: no end
  bool every_place = false;  ///< a text whose blanks and places count is shown place by place
  std::string keys = {};  ///< what its cells are made of, for the form's rule of keys; empty: all
  int group = 0;          ///< of such a text: places that stand together to be read; 0: all
};

/// A grid that holds no data: it asks its rows by index and keeps only the edits of the current row
/// aside. A cell is opened by a key or a press and typed into; when it is left its rule runs. When
/// the row is left the row's rule runs, and only then the edited cells are written, in the order of
/// their columns. Losing the focus leaves neither.
class Grid : public Control {
 public:
  Grid(Window& window, std::string name, std::vector<GridColumn> columns);

  /// What becomes of a cell that is left.
  enum class Leave {
    kTake,     ///< the text, which the rule may have repaired, is the cell's edit
    kRestore,  ///< the cell is as it was before it was opened; the move goes on
    kStay,     ///< the cell stays open, and the move does not take place
  };
  /// The key of a cell that is opened by a press, or by a key that types nothing (F2).
  static constexpr int kNoKey = 0;
  static constexpr int kNoRow = -1;

  // The data, and the rules of the form. All but the first two may be empty.
  std::function<int()> RowCount;
  /// The text of a cell as the data holds it.
  std::function<std::string(int row, int column)> Cell;
  std::function<void(int row, int column, const std::string& text)> Write;
  /// May a cell of this column be opened, by this key? Not asked for other columns than texts.
  std::function<bool(int column, int key)> StartEdit;
  /// A key is struck in the open cell, before it changes `Editor`; 0 cancels it.
  std::function<void(int column, int& key)> KeyPress;
  /// A cell whose text has been changed is being left.
  std::function<Leave(int column, std::string& text)> CellLeft;
  /// The current row, which has edits, is being left: the rule may see them by `Shown` and change
  /// them by `PutEdit` and `DropEdit`, or return false to stay in the row.
  std::function<bool(int row)> RowLeft;
  /// The button of a cell of the current row is pressed.
  std::function<void(int column)> ButtonClick;
  /// The text of the open cell has changed, a cell has been opened or closed, or the edits of the
  /// row are others.
  std::function<void()> Edited;
  /// Another cell has become the current one.
  std::function<void()> Moved;
  /// Another row has become the first one in view.
  std::function<void()> Scrolled;

  [[nodiscard]] const std::vector<GridColumn>& Columns() const { return columns_; }
  /// Gives the columns their headings, as a screen takes its language.
  void SetHeadings(const std::vector<std::string>& headings);
  [[nodiscard]] int Rows() const { return RowCount ? RowCount() : 0; }
  /// The current row; `kNoRow` in a grid without rows.
  [[nodiscard]] int Row() const { return row_ < Rows() ? row_ : kNoRow; }
  [[nodiscard]] int Column() const { return column_; }
  /// Makes a cell the current one. Returns false, where it was, if there is no such cell or if a
  /// rule stays.
  bool MoveTo(int row, int column);
  /// Leaves cell and row without moving: what was typed is in the data then, unless a rule refused
  /// it. False if a rule stays.
  bool Commit() { return LeaveCell() && LeaveRow(); }

  /// What the cell shows: its edit if there is one, else the data.
  [[nodiscard]] std::string Shown(int row, int column) const;
  [[nodiscard]] bool HasEdit(int column) const { return edits_.contains(column); }
  [[nodiscard]] bool HasEdits() const { return opened_ || !edits_.empty(); }
  /// Whether the row shows what the data does not have yet.
  [[nodiscard]] bool HasUntaken() const;
  /// The form puts an edit into a cell of the current row, or takes it back.
  void PutEdit(int column, const std::string& text);
  void DropEdit(int column);

  /// The data has changed, of all rows or of one: the cells are asked anew. Edits that are not
  /// written yet are older, and are dropped.
  void Refresh();
  void RefreshRow(int row);
  /// Another list is shown: refreshed, from its first row.
  void Restart();
  /// The cells are asked anew; edits stay.
  void Repaint() { Redraw(); }

  // What is in view. The desktop tells it; the form may scroll.
  [[nodiscard]] int FirstRow() const { return first_row_; }
  [[nodiscard]] int RowsInView() const { return rows_in_view_; }
  [[nodiscard]] bool OnScreen(int row) const {
    return row >= first_row_ && row < first_row_ + rows_in_view_;
  }
  /// A row that is too near to the end of the grid comes into view as far as it goes.
  void SetFirstRow(int row);
  void SetView(int first_row, int rows_in_view);
  /// Makes a row that is on the screen the current one, unless edits of another row are held.
  void Select(int row);

  // The open cell. `Editor` is the box that it is typed into; the desktop draws it over the cell.
  [[nodiscard]] bool Opened() const { return opened_; }
  [[nodiscard]] TextBox& Editor() { return editor_; }

  // The operator's hand.
  /// A press on a cell, which brings the focus: moves there, presses the button, or opens the cell
  /// that was the current one already.
  void Press(int row, int column);
  /// A character or back space: opens the cell with all of its text selected, or presses the
  /// button; in an open cell, types.
  void TypeKey(int key);
  void Type(const std::string& keys);
  /// F2: opens the current cell with the caret at the end of what is to be seen; the blanks behind
  /// it are selected, so that typing goes on there.
  void OpenCell();
  /// Enter: the row below; in the last row the row is left all the same.
  void Enter();
  /// Delete: opens the current cell, and empties it.
  void Clear();
  /// Ctrl+V: opens the current cell by the key `kKeyPaste`, and pastes over all of its text.
  void Paste(const std::string& text);
  /// Tab: the next, or the previous, cell that can be edited or pressed. False at the end of the
  /// grid, which is then to be left.
  bool Tab(bool forward);
  /// ESC: closes the open cell as it was, else drops the edits of the row. False if there is
  /// nothing to drop.
  bool Escape();

 private:
  [[nodiscard]] const GridColumn& ColumnAt(int column) const {
    return columns_.at(static_cast<std::size_t>(column));
  }
  [[nodiscard]] bool Exists(int row, int column) const;
  bool Open(int key);
  void CloseCell();
  bool LeaveCell();
  bool LeaveRow();
  void Drop();
  void TellEdits();
  void GoTo(int row, int column);
  void ShowRow();

  std::vector<GridColumn> columns_;
  TextBox editor_;
  int row_ = 0;
  int column_ = 0;
  int first_row_ = 0;
  int rows_in_view_ = 0;
  bool opened_ = false;
  bool leaving_ = false;              // a rule runs, which may let events run
  std::map<int, std::string> edits_;  // by column, of the current row
};

/// The place in a grid that is kept while rows are read: the first row in view and the current one.
class GridPlace {
 public:
  explicit GridPlace(Grid& grid) : grid_(grid), first_row_(grid.FirstRow()), row_(grid.Row()) {}

  /// Goes back there. Without `with_row_0` a current row 0 is not gone back to.
  void Restore(bool with_row_0) const;

 private:
  Grid& grid_;
  int first_row_;
  int row_;
};

}  // namespace corvalis
