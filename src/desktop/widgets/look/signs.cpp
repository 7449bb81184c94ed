#include "desktop/widgets/look/signs.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

namespace {

constexpr int kSizes[] = {32, 48, 64, 96, 128};  // of pictures, in pixels, for screens of any scale
constexpr double kStroke = 0.09;                 // of the height

// Draws into the square from 0 to 1.
void DrawWarning(QPainter& painter) {
  QPainterPath triangle({0.5, 0.1});
  triangle.lineTo(0.95, 0.88);
  triangle.lineTo(0.05, 0.88);
  triangle.closeSubpath();
  painter.setPen(
      QPen(QColor(colours::kWarning), kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(colours::kWarning));
  painter.drawPath(triangle);
  painter.setPen(QPen(QColor(colours::kField), kStroke, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(0.5, 0.38), QPointF(0.5, 0.58));
  painter.drawPoint(QPointF(0.5, 0.75));
}

void DrawDisc(QPainter& painter, QRgb colour) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(colour));
  painter.drawEllipse(QRectF(0.04, 0.04, 0.92, 0.92));
  painter.setPen(QPen(QColor(colours::kField), kStroke, Qt::SolidLine, Qt::RoundCap));
}

void DrawFailure(QPainter& painter) {
  DrawDisc(painter, colours::kOnAir);
  painter.drawLine(QPointF(0.34, 0.34), QPointF(0.66, 0.66));
  painter.drawLine(QPointF(0.66, 0.34), QPointF(0.34, 0.66));
}

void DrawInformation(QPainter& painter) {
  DrawDisc(painter, colours::kAccent);
  painter.drawPoint(QPointF(0.5, 0.28));
  painter.drawLine(QPointF(0.5, 0.46), QPointF(0.5, 0.73));
}

}  // namespace

QIcon SignOf(QStyle::StandardPixmap picture) {
  void (*draw)(QPainter&) = nullptr;
  if (picture == QStyle::SP_MessageBoxWarning) draw = DrawWarning;
  if (picture == QStyle::SP_MessageBoxCritical) draw = DrawFailure;
  if (picture == QStyle::SP_MessageBoxInformation) draw = DrawInformation;
  QIcon sign;
  if (draw == nullptr) return sign;
  for (const int size : kSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    draw(painter);
    sign.addPixmap(pixmap);
  }
  return sign;
}

}  // namespace corvalis::desktop
