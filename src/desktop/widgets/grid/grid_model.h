#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "screen/grid.h"

namespace corvalis::desktop {

/// The cells of a grid as the toolkit asks for them. It holds none of them.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(Grid& grid, QObject* parent);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  /// The text of a cell on one line: a character that can't be drawn shows as a small box.
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Takes over how many rows the grid has now.
  void CountRows();
  /// True if the headings have changed since the last call; tells the views.
  bool TakeHeadings();
  /// Says that these rows may show something else.
  void Tell(int first_row, int last_row);

 private:
  Grid& grid_;
  int rows_ = 0;                       // that the view knows of
  std::vector<std::string> headings_;  // likewise
};

}  // namespace corvalis::desktop
