#include "desktop/radio/marks_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

QVariant MarksDelegate::MarksOf(const std::vector<radio::Span>& spans, int shift) {
  QVariantList places;
  for (const radio::Span& span : spans) {
    places << static_cast<int>(span.begin) + shift << static_cast<int>(span.length);
  }
  return places.isEmpty() ? QVariant() : QVariant(places);
}

void MarksDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const QVariantList places = index.data(kMarksRole).toList();
  if (places.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QString text = std::exchange(cell.text, QString());
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

  const bool chosen = cell.state.testFlag(QStyle::State_Selected);
  QList<QTextLayout::FormatRange> ranges;
  for (qsizetype i = 0; i + 1 < places.size(); i += 2) {
    QTextCharFormat format;
    format.setFontUnderline(true);
    format.setFontWeight(QFont::Bold);
    if (!chosen) {
      format.setForeground(QColor(colours::kOnAir));
      format.setBackground(QColor(colours::kDisplay));
    }
    ranges.append({places[i].toInt(), places[i + 1].toInt(), format});
  }
  QTextLayout layout(text, cell.font);
  QTextOption wrap;
  wrap.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(wrap);
  layout.setFormats(ranges);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(cell.rect.width());
  layout.endLayout();

  painter->save();
  painter->setClipRect(cell.rect);
  painter->setPen(QColor(chosen ? colours::kField : colours::kText));
  const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
  layout.draw(painter, QPointF(cell.rect.left() + margin,
                               cell.rect.top() + (cell.rect.height() - line.height()) / 2));
  painter->restore();
}

}  // namespace corvalis::desktop
