#include "screen/grid.h"

#include <algorithm>
#include <utility>

#include "screen/keys.h"

namespace corvalis {

namespace {

// The box of the open cell has no name of its own: it is a part of the grid.
constexpr const char* kNameless = "";

}  // namespace

Grid::Grid(Window& window, std::string name, std::vector<GridColumn> columns)
    : Control(window, std::move(name)), columns_(std::move(columns)), editor_(window, kNameless) {
  editor_.KeyPress = [this](int& key) {
    if (KeyPress) KeyPress(column_, key);
  };
  editor_.Change = [this] {
    if (!opened_) return;
    ShowRow();  // what is typed is seen, though the wheel had turned it away
    if (Edited) Edited();
  };
}

void Grid::SetHeadings(const std::vector<std::string>& headings) {
  for (std::size_t i = 0; i < columns_.size(); ++i) columns_[i].heading = headings.at(i);
  Redraw();
}

bool Grid::Exists(int row, int column) const {
  return row >= 0 && row < Rows() && column >= 0 && column < static_cast<int>(columns_.size());
}

bool Grid::MoveTo(int row, int column) {
  if (!Exists(row, column)) return false;
  if (row == row_ && column == column_) return true;
  if (!LeaveCell() || (row != row_ && !LeaveRow())) return false;
  if (!Exists(row, column)) return false;  // what a rule has written may have changed the data
  GoTo(row, column);
  return true;
}

void Grid::GoTo(int row, int column) {
  if (row == row_ && column == column_) return;
  row_ = row;
  column_ = column;
  ShowRow();
  Redraw();
  if (Moved) Moved();
}

void Grid::ShowRow() {
  if (row_ < first_row_) SetFirstRow(row_);
  if (rows_in_view_ > 0 && row_ >= first_row_ + rows_in_view_)
    SetFirstRow(row_ - rows_in_view_ + 1);
}

std::string Grid::Shown(int row, int column) const {
  if (row == row_) {
    const auto edit = edits_.find(column);
    if (edit != edits_.end()) return edit->second;
  }
  return Cell && Exists(row, column) ? Cell(row, column) : std::string();
}

bool Grid::HasUntaken() const {
  return !edits_.empty() || (opened_ && editor_.Text() != Shown(row_, column_));
}

void Grid::TellEdits() {
  Redraw();
  if (Edited) Edited();
}

void Grid::PutEdit(int column, const std::string& text) {
  static_cast<void>(ColumnAt(column));
  edits_[column] = text;
  TellEdits();
}

void Grid::DropEdit(int column) {
  edits_.erase(column);
  TellEdits();
}

void Grid::Drop() {
  if (!HasEdits()) return;
  edits_.clear();
  CloseCell();
}

void Grid::Refresh() {
  Drop();
  SetFirstRow(first_row_);
  GoTo(std::clamp(row_, 0, std::max(Rows() - 1, 0)), column_);
  Redraw();
}

void Grid::RefreshRow(int row) {
  if (row == row_) Drop();
  // A run over a long list comes by rows that nobody sees; the last one in view may be cut off.
  if (row >= first_row_ && row <= first_row_ + rows_in_view_) Redraw();
}

void Grid::Restart() {
  Drop();
  SetFirstRow(0);
  GoTo(0, 0);
  Redraw();
}

void Grid::SetFirstRow(int row) {
  row = std::clamp(row, 0, std::max(Rows() - std::max(rows_in_view_, 1), 0));
  if (row == first_row_) return;
  first_row_ = row;
  Redraw();
  if (Scrolled) Scrolled();
}

void Grid::SetView(int first_row, int rows_in_view) {
  rows_in_view_ = rows_in_view;
  if (first_row == first_row_) return;
  first_row_ = first_row;
  if (Scrolled) Scrolled();
}

void Grid::Select(int row) {
  if (OnScreen(row) && (row == row_ || !HasEdits())) MoveTo(row, column_);
}

void Grid::Press(int row, int column) {
  if (!TakesEvents() || !Exists(row, column) || !ParentWindow().MoveFocus(this)) return;
  const bool here = row == row_ && column == column_;
  if (!MoveTo(row, column)) return;
  if (ColumnAt(column).kind == GridColumn::Kind::kButton) {
    if (ButtonClick) ButtonClick(column);
  } else if (here) {
    Open(kNoKey);
  }
}

void Grid::TypeKey(int key) {
  if (!TakesEvents() || Row() == kNoRow) return;
  if (!opened_ && ColumnAt(column_).kind == GridColumn::Kind::kButton) {
    if (key == ' ' && ButtonClick) ButtonClick(column_);
    return;
  }
  const bool edits = key >= ' ' || key == kKeyBackspace;
  if (opened_ || (edits && Open(key))) editor_.TypeKey(key);
}

void Grid::Type(const std::string& keys) {
  for (const char key : keys) TypeKey(static_cast<unsigned char>(key));
}

void Grid::OpenCell() {
  if (!TakesEvents() || opened_ || !Open(kNoKey)) return;
  const std::string& text = editor_.Text();
  const std::size_t end = text.find_last_not_of(' ') + 1;
  editor_.Select(static_cast<int>(end), static_cast<int>(text.size() - end));
}

void Grid::Clear() {
  if (TakesEvents() && !opened_ && Open(kNoKey)) editor_.Edit("", 0);
}

void Grid::Paste(const std::string& text) {
  if (TakesEvents() && !opened_ && Open(kKeyPaste)) editor_.Paste(text);
}

void Grid::Enter() {
  if (!TakesEvents() || Row() == kNoRow) return;
  if (row_ + 1 < Rows()) {
    MoveTo(row_ + 1, column_);
  } else {
    Commit();
  }
}

bool Grid::Tab(bool forward) {
  if (!TakesEvents() || Row() == kNoRow) return false;
  const int columns = static_cast<int>(columns_.size());
  const int step = forward ? 1 : -1;
  for (int at = row_ * columns + column_ + step; at >= 0 && at < Rows() * columns; at += step) {
    if (ColumnAt(at % columns).kind != GridColumn::Kind::kShown) {
      MoveTo(at / columns, at % columns);
      return true;
    }
  }
  return false;
}

bool Grid::Escape() {
  if (!TakesEvents() || !HasEdits()) return false;
  if (!opened_) edits_.clear();
  CloseCell();
  return true;
}

bool Grid::Open(int key) {
  if (opened_ || Row() == kNoRow || ColumnAt(column_).kind != GridColumn::Kind::kText)
    return opened_;
  if (StartEdit && !StartEdit(column_, key)) return false;
  editor_.SetMaxLength(ColumnAt(column_).max_length);
  editor_.SetText(Shown(row_, column_));
  editor_.SelectAll();
  opened_ = true;
  ShowRow();
  TellEdits();
  return true;
}

void Grid::CloseCell() {
  opened_ = false;
  TellEdits();
}

bool Grid::LeaveCell() {
  if (leaving_) return false;
  if (!opened_) return true;
  std::string text = editor_.Text();
  Leave leave = text == Shown(row_, column_) ? Leave::kRestore : Leave::kTake;
  if (leave == Leave::kTake && CellLeft) {
    leaving_ = true;
    leave = CellLeft(column_, text);
    leaving_ = false;
    if (!opened_) return true;  // the rule has refreshed the grid
  }
  if (leave == Leave::kStay) return false;
  if (leave == Leave::kTake) edits_[column_] = text;
  CloseCell();
  return true;
}

bool Grid::LeaveRow() {
  if (leaving_) return false;
  if (edits_.empty()) return true;
  if (RowLeft) {
    leaving_ = true;
    const bool leaves = RowLeft(row_);
    leaving_ = false;
    if (!leaves) return false;
  }
  std::map<int, std::string> edits;
  edits.swap(edits_);
  for (const auto& [column, text] : edits) {
    if (Write) Write(row_, column, text);
  }
  TellEdits();
  return true;
}

void GridPlace::Restore(bool with_row_0) const {
  if (row_ > 0 || (row_ == 0 && with_row_0)) grid_.MoveTo(row_, grid_.Column());
  grid_.SetFirstRow(first_row_);
}

}  // namespace corvalis
