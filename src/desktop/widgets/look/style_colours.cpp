// The palette, the fonts and the lengths of the style.

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QToolTip>

#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

namespace {

constexpr double kDigitsScale = 1.5;  // of a code that is read digit by digit

}  // namespace

Length::operator int() const {
  return qRound(usual_ * QFontMetricsF(QApplication::font()).height() / kUsualLine);
}

void Style::polish(QPalette& platform) {
  TakeScheme(platform);
  QToolTip::setPalette(platform);
}

void ApplyStyle(QApplication& application) {
  QApplication::setStyle(new Style);
  QFont font = QApplication::font();
  if (QFontDatabase::hasFamily(QStringLiteral("Inter"))) font.setFamily(QStringLiteral("Inter"));
  QApplication::setFont(font);
  application.setEffectEnabled(Qt::UI_AnimateCombo, false);
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
