#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QProxyStyle>

class QApplication;

namespace corvalis::desktop {

/// The colours of the program. There is one accent; everything else is calm.
namespace colours {
inline constexpr QRgb kWindow = 0xfff2f4f6;
inline constexpr QRgb kCard = 0xfffafbfc;     ///< inside a group
inline constexpr QRgb kField = 0xffffffff;    ///< what can be edited or pressed
inline constexpr QRgb kDisplay = 0xffe9edf1;  ///< what only shows
inline constexpr QRgb kBorder = 0xffa9b4bf;
inline constexpr QRgb kFaintBorder = 0xffd3dae0;
inline constexpr QRgb kText = 0xff17212b;
inline constexpr QRgb kQuietText = 0xff52606d;
inline constexpr QRgb kDisabledText = 0xff8b97a3;
inline constexpr QRgb kAccent = 0xff0a67a6;
inline constexpr QRgb kHover = 0xffe8f1f8;
inline constexpr QRgb kPressed = 0xffcfe2f0;
inline constexpr QRgb kOnAir = 0xffc62828;     ///< what the whole audience hears now
inline constexpr QRgb kOn = 0xff1f7a45;        ///< what is switched on
inline constexpr QRgb kOnGround = 0xffdff1e6;  ///< under it, where many switches stand side by side
inline constexpr QRgb kOff = 0xffb27d77;       ///< what is switched off: red, but no alarm
}  // namespace colours

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

/// Writes a widget's text in a colour.
void SetInk(QWidget& widget, QRgb ink);

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
