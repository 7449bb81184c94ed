// Runs the tests of the real windows and the real port, unseen.

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/style.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  corvalis::desktop::ApplyStyle(*qApp);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
