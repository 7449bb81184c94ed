#include "desktop/widgets/look/inks.h"

#include <QEvent>
#include <QPixmapCache>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

namespace corvalis::desktop {

namespace {

// Black on white is 21. The usual palettes, black on a light grey, stay below this.
constexpr double kHighContrast = 19.5;

struct Taken {
  Scheme scheme = Scheme::kLight;
  QPalette platform;
  int changes = 0;
};
Taken taken;

double Linear(int channel) {
  const double share = channel / 255.0;
  return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb colour) {
  return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) +
         0.0722 * Linear(qBlue(colour));
}

double ContrastOf(const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground) {
  return Contrast(palette.color(text).rgb(), palette.color(ground).rgb());
}

void Fill(QPalette& palette) {
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
  set(QPalette::BrightText, colours::kText);
  set(QPalette::Light, colours::kCard);
  set(QPalette::Midlight, colours::kDisplay);
  set(QPalette::Mid, colours::kFaintBorder);
  set(QPalette::Dark, colours::kBorder);
  set(QPalette::Shadow, colours::kBorder);
  set(QPalette::Highlight, colours::kAccent);
  set(QPalette::HighlightedText, colours::kField);
  set(QPalette::ToolTipBase, colours::kText);
  set(QPalette::ToolTipText, colours::kField);
  set(QPalette::PlaceholderText, colours::kDisabledText);
  set(QPalette::Link, colours::kAccent);
  set(QPalette::LinkVisited, colours::kAccent);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(colours::kDisabledText));
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours::kFaintBorder));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(colours::kDisabledText));
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(colours::kWindow));
}

/// Dresses its parent anew when the scheme has changed.
class Dresser : public QObject {
 public:
  Dresser(QWidget& widget, std::function<void()> dress)
      : QObject(&widget), dress_(std::move(dress)) {
    widget.installEventFilter(this);
    dress_();
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    // One that has not been shown yet is told of no change.
    const bool may_be = event->type() == QEvent::PaletteChange || event->type() == QEvent::Polish;
    if (may_be && std::exchange(seen_, taken.changes) != taken.changes) {
      dress_();
    }
    return false;
  }

 private:
  std::function<void()> dress_;
  int seen_ = taken.changes;
};

}  // namespace

double Contrast(QRgb one, QRgb other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

Scheme SchemeOf(const QPalette& platform, const QByteArray& wish) {
  if (ContrastOf(platform, QPalette::WindowText, QPalette::Window) >= kHighContrast &&
      ContrastOf(platform, QPalette::Text, QPalette::Base) >= kHighContrast) {
    return Scheme::kPlatform;
  }
  if (wish == "dark") return Scheme::kDark;
  if (wish == "light") return Scheme::kLight;
  const QColor text = platform.color(QPalette::WindowText);
  return text.lightness() > platform.color(QPalette::Window).lightness() ? Scheme::kDark
                                                                         : Scheme::kLight;
}

Scheme CurrentScheme() { return taken.scheme; }

void TakeScheme(QPalette& platform) {
  const Scheme scheme = SchemeOf(platform, qgetenv("CORVALIS_SCHEME"));
  if (scheme != taken.scheme || platform != taken.platform) {
    ++taken.changes;
    QPixmapCache::clear();  // what is in it was drawn in the inks before
  }
  taken.scheme = scheme;
  taken.platform = platform;
  if (scheme != Scheme::kPlatform) Fill(platform);
}

QRgb Ink::In(Scheme scheme) const {
  if (scheme == Scheme::kPlatform) return taken.platform.color(group_, role_).rgb();
  return scheme == Scheme::kDark ? dark_ : light_;
}

void FollowScheme(QWidget& widget, std::function<void()> dress) {
  new Dresser(widget, std::move(dress));
}

void SetInk(QWidget& widget, Ink ink) {
  FollowScheme(widget, [&widget, ink] {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, QColor(ink));
    widget.setPalette(palette);
  });
}

}  // namespace corvalis::desktop
