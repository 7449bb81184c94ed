#pragma once

#include <QStringList>
#include <QTableWidget>
#include <vector>

namespace corvalis::desktop {

/// A table that only shows. A press on a cell, or Ctrl+C, copies it.
class CopyTable : public QTableWidget {
 public:
  /// `rows` is how many of them are in view at least.
  CopyTable(const QString& name, const QStringList& headings, int rows, QWidget* parent);

  /// What is chosen and where it is scrolled to stays. A row of `loud` stands out.
  void Show(const std::vector<QStringList>& rows, const std::vector<bool>& loud = {});

  /// A column gets no wider on its own.
  void Limit(int column, int width);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FitColumns();

  int rows_in_view_;
  std::vector<int> widest_;  // of what has stood in each column
  std::vector<int> limits_;
};

}  // namespace corvalis::desktop
