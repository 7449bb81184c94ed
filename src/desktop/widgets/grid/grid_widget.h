#pragma once

#include <QTableView>
#include <functional>
#include <optional>

#include "desktop/text.h"
#include "desktop/widgets/grid/grid_delegate.h"
#include "desktop/widgets/grid/grid_model.h"
#include "screen/grid.h"

namespace corvalis::desktop {

/// A table that shows a grid and hands the operator's keys and presses over to it. The cell that is
/// open is a text box like any other; while it is open it has the keyboard in the table's place.
class GridWidget : public QTableView {
 public:
  /// `heading` says what the table is about where the grid has no caption.
  GridWidget(Grid& grid, QWidget* parent, const std::optional<Wording>& heading = {});

  /// The place of a cell in the table, as far as it is in view; empty if it is not.
  [[nodiscard]] QRect CellRect(int row, int column) const;
  /// Drops what has been typed and not written; false if there is nothing.
  bool Escape() { return grid_.Escape(); }
  /// Cells may stand elsewhere: the table has been scrolled or resized.
  std::function<void()> Arranged;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void initViewItemOption(QStyleOptionViewItem* option) const override;

  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Draw();
  void DrawCurrent();
  [[nodiscard]] QModelIndex OpenedCell() const;
  void CloseEditor();
  void OpenEditor();
  void FitFont();
  void FillWidth();
  void TellView();
  [[nodiscard]] int RowsInView() const;
  /// True if the keyboard is at the table or in its open cell.
  [[nodiscard]] bool Active() const;
  void GiveKeyboardToEditor();
  void Press(const QModelIndex& cell);

  /// The keys that move, in the open cell too; true if the key was one.
  bool MovedByKey(const QKeyEvent& event);
  bool MovedAlongRow(const QKeyEvent& event);
  void Tab(const QKeyEvent& event);
  void Strike(const QString& characters);

  Grid& grid_;
  GridModel* model_;
  GridDelegate* delegate_;
  QPersistentModelIndex editing_;
  // The last press, for the second one of a double click.
  QPersistentModelIndex pressed_;
  QPoint pressed_at_;
  int natural_width_ = 0;   // of all columns
  bool arranging_ = false;  // the table is put in step with the grid
  bool passing_ = false;    // the keyboard passes through on its way out
};

}  // namespace corvalis::desktop
