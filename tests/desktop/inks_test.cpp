// The colours of the program, and the schemes they follow.

#include "desktop/widgets/look/inks.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <vector>

namespace corvalis::test {
namespace {

using namespace desktop::colours;
using desktop::Ink;
using desktop::Scheme;

struct Pair {
  const char* what;
  Ink ink;
  std::vector<Ink> grounds;
};

void ExpectContrast(const std::vector<Pair>& pairs, double least) {
  for (const Scheme scheme : {Scheme::kLight, Scheme::kDark}) {
    for (const Pair& pair : pairs) {
      for (std::size_t i = 0; i < pair.grounds.size(); ++i) {
        EXPECT_GE(desktop::Contrast(pair.ink.In(scheme), pair.grounds[i].In(scheme)), least)
            << pair.what << " on its ground " << i << (scheme == Scheme::kDark ? ", dark" : "");
      }
    }
  }
}

TEST(InksTest, EveryTextAndEveryLineThatMeansSomethingStandsOut) {
  ExpectContrast({{"text", kText, {kWindow, kCard, kField, kDisplay, kHover, kPressed}},
                  {"quiet text", kQuietText, {kWindow, kCard, kField, kDisplay}},
                  {"accent", kAccent, {kWindow, kCard, kField}},
                  {"on", kOn, {kOnGround, kHover}},
                  {"on a strong ground", kField, {kOnAir, kAccent, kText}}},
                 7);
  ExpectContrast({{"disabled", kDisabledText, {kWindow, kCard}}}, 4.5);
  ExpectContrast({{"border", kBorder, {kWindow, kCard, kField, kDisplay}},
                  {"accent", kAccent, {kWindow, kCard, kField, kHover, kPressed}},
                  {"on air", kOnAir, {kWindow, kCard}},
                  {"on", kOn, {kWindow, kCard, kField}},
                  {"off", kOff, {kWindow, kCard, kField}},
                  {"warning", kWarning, {kWindow, kCard}}},
                 3);
  EXPECT_NEAR(desktop::Contrast(0xff000000, 0xffffffff), 21, 0.01);
}

QPalette Of(QRgb text, QRgb ground) {
  QPalette palette;
  for (const auto role : {QPalette::WindowText, QPalette::Text}) palette.setColor(role, text);
  for (const auto role : {QPalette::Window, QPalette::Base}) palette.setColor(role, ground);
  return palette;
}

TEST(InksTest, TheSchemeIsThePlatformsUnlessTheEnvironmentWishes) {
  const QPalette light = Of(0xff000000, 0xffefefef);
  const QPalette dark = Of(0xffffffff, 0xff2a2e32);
  const QPalette high = Of(0xffffffff, 0xff000000);
  const struct {
    const QPalette& platform;
    const char* wish;
    Scheme scheme;
  } cases[] = {{light, "", Scheme::kLight},       {dark, "", Scheme::kDark},
               {light, "dark", Scheme::kDark},    {dark, "light", Scheme::kLight},
               {dark, "Light", Scheme::kDark},    {high, "", Scheme::kPlatform},
               {high, "light", Scheme::kPlatform}};
  for (const auto& [platform, wish, scheme] : cases) {
    EXPECT_EQ(desktop::SchemeOf(platform, wish), scheme) << wish;
  }
}

TEST(InksTest, WhatIsOnTheScreenFollowsAChange) {
  QWidget window;
  QLabel label(&window);
  desktop::SetInk(label, kQuietText);
  window.show();
  const auto ink = [&label] { return label.palette().color(QPalette::WindowText).rgb(); };
  const auto take = [](const char* wish) {
    qputenv("CORVALIS_SCHEME", wish);
    QApplication::setPalette(QPalette());  // as when the platform's palette changes
    QApplication::processEvents();
  };
  take("dark");
  EXPECT_EQ(ink(), kQuietText.In(Scheme::kDark));
  EXPECT_EQ(QApplication::palette().color(QPalette::Window).rgb(), kWindow.In(Scheme::kDark));
  take("light");
  EXPECT_EQ(ink(), kQuietText.In(Scheme::kLight));
  EXPECT_EQ(QApplication::palette().color(QPalette::Window).rgb(), kWindow.In(Scheme::kLight));
  // A palette of high contrast is the platform's own, and so are the inks.
  QPalette high = Of(0xffffff00, 0xff000000);
  desktop::TakeScheme(high);
  EXPECT_EQ(high.color(QPalette::WindowText).rgb(), 0xffffff00);
  EXPECT_EQ(QRgb(kAccent), 0xffffff00);
  qunsetenv("CORVALIS_SCHEME");
  QApplication::setPalette(QPalette());
}

}  // namespace
}  // namespace corvalis::test
