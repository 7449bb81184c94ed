#pragma once

#include <QFont>
#include <QIcon>
#include <QProxyStyle>

#include "desktop/widgets/look/inks.h"

class QApplication;

namespace corvalis::desktop {

/// A length that grows with the program's font, so that whoever needs larger letters gets room for
/// them. Converts to device-independent pixels.
class Length {
 public:
  /// `usual` is the length, in pixels, where a line of text is `kUsualLine` pixels high.
  constexpr explicit Length(int usual) : usual_(usual) {}
  operator int() const;  // NOLINT(google-explicit-constructor): lengths are reckoned with

  static constexpr int kUsualLine = 17;

 private:
  int usual_;
};

/// The distances of every layout.
inline constexpr Length kTight{4};
inline constexpr Length kNear{8};
inline constexpr Length kGap{12};
inline constexpr Length kApart{16};

/// The height of a one-line control, and of a button that opens a screen.
inline constexpr Length kControlHeight{34};
inline constexpr Length kLargeHeight{46};

/// How every control of the program looks: flat, with a ring of the accent colour around whatever
/// has the keyboard, and grey where a field only shows.
class Style : public QProxyStyle {
 public:
  Style();

  /// Makes the program's palette of the platform's.
  void polish(QPalette& platform) override;
  using QProxyStyle::polish;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const override;
  [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                       const QSize& size, const QWidget* widget) const override;
  [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const override;
  [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* data) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                   const QWidget* widget) const override;
};

/// Gives the program its style, palette and font.
void ApplyStyle(QApplication& application);

/// `base` in bold.
[[nodiscard]] QFont Bold(QFont base);
/// For values that are read digit by digit, at a distance.
[[nodiscard]] QFont DigitsFont();

/// The frame and the ground of a field, as every box of the program has it.
struct FieldLook {
  bool enabled = true;
  bool focus = false;
  bool display_only = false;
};
void DrawField(QPainter& painter, const QRect& rect, FieldLook look);
/// The ring around what has the keyboard.
void DrawFocusRing(QPainter& painter, const QRect& rect);
/// The head of an arrow in the middle of `rect`, up or down.
void DrawArrow(QPainter& painter, const QRectF& rect, bool up, bool enabled);

}  // namespace corvalis::desktop
