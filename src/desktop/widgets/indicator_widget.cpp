#include "desktop/widgets/indicator_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/text.h"
#include "desktop/widgets/binding.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

namespace {

constexpr double kPointSize = 34;
constexpr int kLeastWidth = 300;
constexpr int kLeastHeight = 170;
constexpr double kCorner = 6;

QFont LargeFont(const QWidget& widget) {
  QFont font = Bold(widget.font());
  font.setPointSizeF(kPointSize);
  return font;
}

}  // namespace

IndicatorWidget::IndicatorWidget(CheckBox& box, QWidget* parent) : QWidget(parent), box_(box) {
  Bind(*this, box, [this] { update(); });
}

QSize IndicatorWidget::sizeHint() const {
  const QFontMetrics metrics(LargeFont(*this));
  return {std::max(metrics.horizontalAdvance(FromBytes(box_.Caption())) + 4 * kApart, kLeastWidth),
          std::max(metrics.height() + 2 * kApart, kLeastHeight)};
}

void IndicatorWidget::mousePressEvent(QMouseEvent* event) {
  // It only shows: a press changes nothing, and leaves the keyboard where it is.
  event->accept();
}

void IndicatorWidget::paintEvent(QPaintEvent* /*event*/) {
  // A state that is on shows white on its colour; one that is off stays as quiet as a field.
  QRgb ground = colours::kDisplay;
  QRgb text = colours::kQuietText;
  if (box_.ColourTone() == CheckBox::Tone::kOn) {
    ground = colours::kOnAir;
    text = colours::kField;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(ground));
  painter.drawRoundedRect(rect(), kCorner, kCorner);
  painter.setFont(LargeFont(*this));
  painter.setPen(QColor(text));
  painter.drawText(rect(), Qt::AlignCenter, FromBytes(box_.Caption()));
}

}  // namespace corvalis::desktop
