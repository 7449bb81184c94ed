// Runs the tests of the real windows and the real port, unseen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>

#include "desktop/widgets/look/style.h"

// What the libraries underneath keep for ever is no leak of ours. Asked for by the leak detector,
// where one is built in.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libfontconfig\nleak:libQt6\nleak:libglib\n";
}

namespace {

// A window that a test has left deletes itself at the next event, which would be the next test's.
class LeavesNoWindow : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*test*/) override {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  corvalis::desktop::ApplyStyle(*qApp);
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new LeavesNoWindow);  // it owns it
  return RUN_ALL_TESTS();
}
