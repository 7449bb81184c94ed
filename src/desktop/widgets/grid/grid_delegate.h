#pragma once

#include <QFont>
#include <QKeyEvent>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <functional>

#include "screen/grid.h"

namespace corvalis::desktop {

/// Draws the cells of a grid, and makes the box over the open one, which is bound to the grid's
/// editor: nothing is handed over between the two.
class GridDelegate : public QStyledItemDelegate {
 public:
  GridDelegate(Grid& grid, QObject* parent);

  /// A key struck in the open cell; true if it is not for the text.
  std::function<bool(QKeyEvent& key)> KeyInEditor;

  /// The program's font has changed.
  void SetFont(const QFont& font);
  /// What a row, and a column under its heading, take, in device-independent pixels.
  [[nodiscard]] int RowHeight() const;
  [[nodiscard]] int ColumnWidth(int column) const;
  [[nodiscard]] QFont HeadingFont() const;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

  bool eventFilter(QObject* editor, QEvent* event) override;

 private:
  [[nodiscard]] const GridColumn& ColumnOf(int column) const;
  [[nodiscard]] const QFont& FontOf(const GridColumn& column) const;
  [[nodiscard]] QPixmap ButtonLook(QSize size, double scale, QStyle::State state,
                                   const QString& word) const;
  void DrawPlaces(QPainter& painter, const QRect& rect, const QString& text, int group) const;

  Grid& grid_;
  QFont font_;
  QFont places_font_;  // every character as wide as any other
};

}  // namespace corvalis::desktop
