// The colours and fonts of the style.

#include <QApplication>
#include <QFontDatabase>
#include <QToolTip>

#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

namespace {

constexpr double kDigitsScale = 1.5;  // of a code that is read digit by digit

QPalette LightPalette() {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, QRgb colour) {
    palette.setColor(role, QColor(colour));
  };
  set(QPalette::Window, colours::kWindow);
  set(QPalette::WindowText, colours::kText);
  set(QPalette::Base, colours::kField);
  set(QPalette::AlternateBase, colours::kCard);
  set(QPalette::Text, colours::kText);
  set(QPalette::Button, colours::kField);
  set(QPalette::ButtonText, colours::kText);
  set(QPalette::Dark, colours::kBorder);
  set(QPalette::Highlight, colours::kAccent);
  set(QPalette::HighlightedText, colours::kField);
  set(QPalette::ToolTipBase, colours::kText);
  set(QPalette::ToolTipText, colours::kField);
  set(QPalette::PlaceholderText, colours::kDisabledText);
  set(QPalette::Link, colours::kAccent);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(colours::kDisabledText));
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours::kFaintBorder));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(colours::kDisabledText));
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(colours::kWindow));
  return palette;
}

}  // namespace

void ApplyStyle(QApplication& application) {
  QApplication::setStyle(new Style);
  QApplication::setPalette(LightPalette());
  QToolTip::setPalette(LightPalette());
  QFont font = QApplication::font();
  if (QFontDatabase::hasFamily(QStringLiteral("Inter"))) font.setFamily(QStringLiteral("Inter"));
  QApplication::setFont(font);
  application.setEffectEnabled(Qt::UI_AnimateCombo, false);
}

void SetInk(QWidget& widget, QRgb ink) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::WindowText, QColor(ink));
  widget.setPalette(palette);
}

QFont Bold(QFont base) {
  base.setWeight(QFont::DemiBold);
  return base;
}

QFont DigitsFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(kDigitsScale * QFontInfo(QApplication::font()).pointSizeF());
  return font;
}

}  // namespace corvalis::desktop
