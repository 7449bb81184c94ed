#include "desktop/radio/lamp_item.h"

#include <QPainter>

#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

namespace {

constexpr double kCorner = 4;

}  // namespace

LampItem::LampItem(const QString& name, QWidget* parent) : ShownItem(name, parent) {
  setAlignment(Qt::AlignCenter);
  setContentsMargins(kTight, kTight, kTight, kTight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  Dress();
}

void LampItem::Show(const radio::Face::Lamp& lamp) {
  const QString words = QString::fromStdString(lamp.words);
  SetName(QString::fromStdString(lamp.name));
  const bool changed = lit_ != lamp.lit || announces_ != lamp.announces;
  lit_ = lamp.lit;
  announces_ = lamp.announces;
  Display(Name() + u'\n' + words, Name() + QStringLiteral(": ") + words);
  setAccessibleName(Name() + QStringLiteral(": ") + words);
  if (changed) Dress();
}

void LampItem::Dress() {
  QPalette palette = this->palette();
  palette.setColor(QPalette::WindowText, QColor(announces_ ? colours::kField
                                                : lit_     ? colours::kText
                                                           : colours::kQuietText));
  setPalette(palette);
  setFont(lit_ ? Bold(parentWidget()->font()) : parentWidget()->font());
  update();
}

void LampItem::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(lit_ ? colours::kOn : colours::kFaintBorder));
    painter.setBrush(QColor(announces_ ? colours::kOnAir
                            : lit_     ? colours::kOnGround
                                       : colours::kDisplay));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  }
  ShownItem::paintEvent(event);
}

}  // namespace corvalis::desktop
