#pragma once

#include <QColor>
#include <QPalette>
#include <functional>

class QWidget;

namespace corvalis::desktop {

/// What the colours of the program are made for.
enum class Scheme {
  kLight,
  kDark,
  kPlatform,  ///< a palette of high contrast: it is left as the platform has it
};

/// How strongly two colours differ, from 1 (not at all) to 21 (black and white), as WCAG 2 has it.
[[nodiscard]] double Contrast(QRgb one, QRgb other);

/// The scheme of a platform with this palette. `wish` is what the environment asks for, "dark" or
/// "light": it stands before the palette, but not before one of high contrast. Anything else is no
/// wish.
[[nodiscard]] Scheme SchemeOf(const QPalette& platform, const QByteArray& wish);

/// That in force.
[[nodiscard]] Scheme CurrentScheme();
/// Takes the scheme of the platform's palette and of CORVALIS_SCHEME, and makes the program's
/// palette of it. The style calls it whenever the platform's palette comes or changes.
void TakeScheme(QPalette& platform);

/// A colour of the program, in each scheme. Where it stands for a colour it is that of the scheme
/// in force: who keeps one beyond a paint asks `FollowScheme`.
class Ink {
 public:
  constexpr Ink(QRgb light, QRgb dark, QPalette::ColorRole role,
                QPalette::ColorGroup group = QPalette::Active)
      : light_(light), dark_(dark), role_(role), group_(group) {}

  [[nodiscard]] QRgb In(Scheme scheme) const;
  operator QRgb() const {  // NOLINT(google-explicit-constructor): it is a colour
    return In(CurrentScheme());
  }

 private:
  QRgb light_;
  QRgb dark_;
  QPalette::ColorRole role_;  // of the platform's palette
  QPalette::ColorGroup group_;
};

/// The colours of the program; there are no others. There is one accent, everything else is calm.
/// Each text has a contrast of 7 to what it stands on, each line that means something one of 3;
/// what is disabled has 4.5.
namespace colours {
inline constexpr Ink kWindow{0xfff2f4f6, 0xff171c21, QPalette::Window};
/// Inside a group.
inline constexpr Ink kCard{0xfffafbfc, 0xff1c2228, QPalette::Window};
/// What can be edited or pressed; also what is written on an accent or on the air's colour.
inline constexpr Ink kField{0xffffffff, 0xff20272e, QPalette::Base};
/// What only shows.
inline constexpr Ink kDisplay{0xffe9edf1, 0xff12161a, QPalette::Window};
inline constexpr Ink kBorder{0xff7c8894, 0xff76848f, QPalette::WindowText};
/// Only parts what is told apart otherwise.
inline constexpr Ink kFaintBorder{0xffd3dae0, 0xff333d46, QPalette::WindowText};
inline constexpr Ink kText{0xff17212b, 0xffe6ebf0, QPalette::WindowText};
inline constexpr Ink kQuietText{0xff434f5a, 0xffb3bec8, QPalette::WindowText};
inline constexpr Ink kDisabledText{0xff65707b, 0xff87939e, QPalette::WindowText,
                                   QPalette::Disabled};
inline constexpr Ink kAccent{0xff07508a, 0xff7cc0f5, QPalette::WindowText};
inline constexpr Ink kHover{0xffe8f1f8, 0xff28333d, QPalette::AlternateBase};
inline constexpr Ink kPressed{0xffcfe2f0, 0xff2b4358, QPalette::AlternateBase};
/// What the whole audience hears now, and what has failed.
inline constexpr Ink kOnAir{0xffa51414, 0xffff948c, QPalette::WindowText};
/// What is switched on.
inline constexpr Ink kOn{0xff0f5a2e, 0xff7fd6a2, QPalette::WindowText};
/// Under it, where many switches stand side by side.
inline constexpr Ink kOnGround{0xffdff1e6, 0xff1a3526, QPalette::Base};
/// What is switched off: red, but no alarm.
inline constexpr Ink kOff{0xffa0655e, 0xffc08a83, QPalette::WindowText};
inline constexpr Ink kWarning{0xff7a5200, 0xfff0b849, QPalette::WindowText};
}  // namespace colours

/// Calls `dress`, which colours `widget` or its parts, now and whenever the scheme has changed.
void FollowScheme(QWidget& widget, std::function<void()> dress);

/// Writes a widget's text in a colour.
void SetInk(QWidget& widget, Ink ink);

}  // namespace corvalis::desktop
