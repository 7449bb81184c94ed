#include "desktop/widgets/grid/grid_delegate.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>

#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/text_box_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kFrame = 2;        // around the current cell
constexpr double kDot = 2;       // in place of a blank
constexpr int kButtonWords = 3;  // "Off"
constexpr double kButtonCorner = 3;
constexpr double kGroupGap = 0.6;  // places between two groups

// The gaps, in places, before a place.
double GapsBefore(qsizetype place, int group) {
  const qsizetype gaps = group > 0 ? place / group : 0;
  return static_cast<double>(gaps) * kGroupGap;
}

bool IsOn(const QString& word) { return word.compare(u"on", Qt::CaseInsensitive) == 0; }

}  // namespace

GridDelegate::GridDelegate(Grid& grid, QObject* parent)
    : QStyledItemDelegate(parent), grid_(grid) {}

void GridDelegate::SetFont(const QFont& font) {
  font_ = font;
  places_font_ = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  places_font_.setPointSizeF(font.pointSizeF());
}

const GridColumn& GridDelegate::ColumnOf(int column) const {
  return grid_.Columns().at(static_cast<std::size_t>(column));
}

const QFont& GridDelegate::FontOf(const GridColumn& column) const {
  return column.every_place ? places_font_ : font_;
}

QFont GridDelegate::HeadingFont() const { return Bold(font_); }

int GridDelegate::RowHeight() const {
  return std::max(QFontMetrics(font_).height(), QFontMetrics(places_font_).height()) + kNear;
}

int GridDelegate::ColumnWidth(int column) const {
  const GridColumn& of = ColumnOf(column);
  const QFontMetricsF metrics(FontOf(of));
  const bool button = of.kind == GridColumn::Kind::kButton;
  // One place more, as capitals are wider than digits, and for the caret behind the last place.
  const int places = button ? std::max(of.width, kButtonWords) : of.width + 1;
  const double gaps = GapsBefore(of.width - 1, of.group);
  const double text = (places + gaps) * metrics.horizontalAdvance(u'0');
  const double heading = QFontMetricsF(HeadingFont()).horizontalAdvance(FromBytes(of.heading));
  return static_cast<int>(std::ceil(std::max(text + (button ? kNear : 0), heading))) + kApart;
}

// A grid of many switches is scrolled by drawing them again and again, so each look is drawn once.
QPixmap GridDelegate::ButtonLook(QSize size, double scale, QStyle::State state,
                                 const QString& word) const {
  const bool enabled = state.testFlag(QStyle::State_Enabled);
  const bool hover = state.testFlag(QStyle::State_MouseOver);
  const QString key = QStringLiteral("grid %1x%2 %3 %4 %5 %6 %7")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(scale)
                          .arg(enabled)
                          .arg(hover)
                          .arg(font_.key(), word);
  QPixmap look;
  if (QPixmapCache::find(key, &look)) return look;

  QRgb ground = IsOn(word) ? colours::kOnGround : colours::kField;
  QRgb border = IsOn(word) ? colours::kOn : colours::kBorder;
  QRgb ink = IsOn(word) ? colours::kOn : colours::kText;
  if (hover) ground = colours::kHover;
  if (!enabled) {
    ground = colours::kWindow;
    border = colours::kFaintBorder;
    ink = colours::kDisabledText;
  }
  look = QPixmap(size * scale);
  look.setDevicePixelRatio(scale);
  look.fill(Qt::transparent);
  QPainter painter(&look);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(border), 1));
  painter.setBrush(QColor(ground));
  const QRect cell(QPoint(0, 0), size);
  painter.drawRoundedRect(QRectF(cell).adjusted(4.5, 3.5, -5.5, -4.5), kButtonCorner,
                          kButtonCorner);
  painter.setFont(IsOn(word) ? HeadingFont() : font_);
  painter.setPen(QColor(ink));
  painter.drawText(cell.adjusted(0, 0, -1, -1), Qt::AlignCenter, word);
  painter.end();
  QPixmapCache::insert(key, look);
  return look;
}

// Each place where it stands, and a quiet dot for a blank. Groups stand apart in the picture alone.
void GridDelegate::DrawPlaces(QPainter& painter, const QRect& rect, const QString& text,
                              int group) const {
  const QFontMetricsF metrics(places_font_);
  const double place = metrics.horizontalAdvance(u'0');
  const double base = rect.top() + (rect.height() - metrics.height()) / 2 + metrics.ascent();
  const bool even = group == 0 && std::abs(metrics.horizontalAdvance(text) -
                                           place * static_cast<int>(text.size())) < 1;
  if (even) painter.drawText(QPointF(rect.left(), base), text);
  QRectF dot(0, 0, kDot, kDot);
  for (int i = 0; i < text.size(); ++i) {
    const double left = rect.left() + (i + GapsBefore(i, group)) * place;
    if (text[i] == u' ') {
      dot.moveCenter({left + place / 2, rect.center().y() + 0.5});
      painter.fillRect(dot, QColor(colours::kBorder));
    } else if (!even) {
      painter.drawText(QPointF(left, base), text[i]);
    }
  }
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const GridColumn& column = ColumnOf(index.column());
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool in_row = index.row() == grid_.Row();
  const bool current = in_row && index.column() == grid_.Column();
  const QString text = index.data().toString();

  painter->save();
  painter->setClipRect(option.rect);
  const QRgb paper = enabled ? colours::kField : colours::kWindow;
  painter->fillRect(option.rect, QColor(in_row ? colours::kPressed : paper));
  painter->setPen(QColor(colours::kFaintBorder));
  painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  painter->drawLine(option.rect.topRight(), option.rect.bottomRight());

  const QRect inner = option.rect.adjusted(kNear, 0, -kFrame, -1);
  if (column.kind == GridColumn::Kind::kButton) {
    const double scale = painter->device()->devicePixelRatioF();
    const QPixmap look = ButtonLook(option.rect.size(), scale, option.state, text);
    painter->drawPixmap(option.rect.topLeft(), look);
  } else if (!current || !grid_.Opened()) {
    const bool quiet = column.kind == GridColumn::Kind::kShown && !in_row;
    QRgb ink = quiet ? colours::kQuietText : colours::kText;
    if (!enabled) ink = colours::kDisabledText;
    painter->setPen(QColor(ink));
    painter->setFont(FontOf(column));
    if (column.every_place) {
      DrawPlaces(*painter, inner, text, column.group);
    } else {
      painter->drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                        QFontMetrics(font_).elidedText(text, Qt::ElideRight, inner.width()));
    }
  }
  if (current) {
    const bool keyboard = option.state.testFlag(QStyle::State_HasFocus);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    QPen frame(QColor(keyboard ? colours::kAccent : colours::kBorder), kFrame);
    frame.setJoinStyle(Qt::MiterJoin);
    painter->setPen(frame);
    painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
  }
  painter->restore();
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                    const QModelIndex& index) const {
  const GridColumn& column = ColumnOf(index.column());
  auto* editor = new TextBoxWidget(grid_.Editor(), column.width, parent);
  editor->setFrame(false);
  editor->setFont(FontOf(column));
  editor->setBackgroundRole(QPalette::Base);
  editor->setAutoFillBackground(true);
  // The text stays where the cell had it.
  editor->setTextMargins(kTight, 0, 0, kTight / 2);
  editor->setAccessibleName(FromBytes(column.heading));
  return editor;
}

// The editor and the grid are bound: there is nothing to carry over.
void GridDelegate::setEditorData(QWidget* /*editor*/, const QModelIndex& /*index*/) const {}
void GridDelegate::setModelData(QWidget* /*editor*/, QAbstractItemModel* /*model*/,
                                const QModelIndex& /*index*/) const {}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& /*index*/) const {
  editor->setGeometry(option.rect.adjusted(kFrame, kFrame, -kFrame, -kFrame));
}

// Not the base's: it would close the cell when the keyboard goes elsewhere.
bool GridDelegate::eventFilter(QObject* /*editor*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !KeyInEditor) return false;
  if (!KeyInEditor(*static_cast<QKeyEvent*>(event))) return false;
  event->accept();
  return true;
}

}  // namespace corvalis::desktop
