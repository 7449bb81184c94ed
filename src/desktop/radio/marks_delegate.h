#pragma once

#include <QStyledItemDelegate>
#include <vector>

#include "radio/marks.h"

namespace corvalis::desktop {

/// Draws a cell whose text differs from another: what differs is bold, underlined and on a ground
/// of its own.
class MarksDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// A cell has a list of numbers there, begin and length of each part that differs.
  static constexpr int kMarksRole = Qt::UserRole;
  [[nodiscard]] static QVariant MarksOf(const std::vector<radio::Span>& spans, int shift);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace corvalis::desktop
