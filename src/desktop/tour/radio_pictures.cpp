#include "desktop/tour/radio_pictures.h"

#include <QApplication>
#include <QTest>
#include <cstdio>

#include "desktop/radio/radio_window.h"
#include "desktop/text.h"
#include "desktop/tour/hand.h"
#include "desktop/widgets/look/style.h"
#include "machine/qt_time.h"
#include "platform/platform.h"

namespace corvalis::desktop {

int TakeRadioPictures(const QString& folder, const QString& station, const QString& source) {
  machine::QtTime time;
  ProfileStore profiles;
  Platform platform;
  platform.clock = &time;
  platform.pump = &time;
  platform.profiles = &profiles;
  InstallPlatform(&platform);
  ApplyStyle(*qApp);

  constexpr int kLookMilliseconds = 1500;
  RadioWindow window;
  std::string wrong = window.OpenStation(ToFileName(station));
  if (wrong.empty()) wrong = window.OpenSource(ToFileName(source));
  if (!wrong.empty()) {
    std::fprintf(stderr, "%s\n", wrong.c_str());
    return 1;
  }
  window.show();
  QTest::qWait(kLookMilliseconds);
  const Hand hand(folder);
  hand.Picture(window, QStringLiteral("radio"));
  window.ShowComparison();
  QTest::qWait(kLookMilliseconds);
  hand.Picture(window, QStringLiteral("radio-comparison"));
  return 0;
}

}  // namespace corvalis::desktop
