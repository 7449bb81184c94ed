// The main menu as a window: start, what can't be closed, and the end.

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "desktop/running_program.h"

namespace corvalis::test {
namespace {

using WindowsMenuTest = RunningProgram;

TEST_F(WindowsMenuTest, StartsOnItsFileWithTheScreensThatThereAre) {
  // While it loads there is no menu to press a button of.
  int looks = 0;
  QTimer looking;
  QObject::connect(&looking, &QTimer::timeout, &looking, [&looks] {
    if (OnScreen(kWait) == nullptr) return;
    ++looks;
    EXPECT_EQ(OnScreen(kMain), nullptr);
  });
  looking.start(1);
  StartWithCoder({"--open", "--late", "40"},
                 std::string(kLocalFile) + "[RDS Setup]\nGroups Enable=On\n");
  looking.stop();
  EXPECT_GT(looks, 0);
  EXPECT_EQ(hand.Window(kMain).windowTitle(),
            "  Main Menu                                 -CORVALIS-        V2.02.60724.1");
  EXPECT_EQ(OnScreen(kWait), nullptr);
  EXPECT_EQ(hand.Shown(kMain, "Text105"), "corvalis.rds");
  const std::pair<const char*, QString> screens[] = {
      {"TaPtyMsButton", kOnAir},  {"CtTpDiPiButton", kStation},      {"EditGroupsButton", kGroups},
      {"RS232CButton", kSetup},   {"ConnectionButton", kConnection}, {"PsnRtPinAfButton", kTexts},
      {"EonLiButton", kNetworks}, {"TdcIhButton", kChannels}};
  for (const auto& [button, screen] : screens) {
    ASSERT_TRUE(Usable(kMain, button)) << button;
    hand.Click(kMain, button);
    // The menu under it takes nothing: neither its close box nor a press.
    ExpectNotToClose({kMain});
    ClickBeneath(kMain, "NewButton");
    hand.Close(screen);
    EXPECT_EQ(OnScreen(screen), nullptr);
  }
  EXPECT_TRUE(Usable(kMain, "EditGroupsButton"));  // the press on New was not taken
}

TEST_F(WindowsMenuTest, APortThatIsNotThereIsSaidOnceAndAllElseWorks) {
  Plug("/dev/corvalis-unplugged");
  during_box = [] { EXPECT_NE(OnScreen(kMain), nullptr); };
  Start(kLocalFile);
  EXPECT_EQ(Boxes(), Lines{"COM 1 (/dev/corvalis-unplugged): No such file or directory"});
  OpenIdentity();
  hand.Choose(kStation, "CountryCombo", "Switzerland");
  hand.Click(kStation, "SendPiCommand");
  hand.Close(kStation);
  hand.Click(kMain, "SaveButton");
  EXPECT_NE(ReadFile("corvalis.rds").find("Country=4\n"), std::string::npos);
  PressCloseBox(kMain);
}

TEST_F(WindowsMenuTest, WhereItsFoldersCannotBeMadeTheHomeFolderServes) {
  qputenv("HOME", qgetenv("XDG_DATA_HOME"));
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    qputenv(variable, "/proc/nobody");
  }
  program = std::make_unique<desktop::Program>();
  program->Start();
  static_cast<void>(Boxes());  // COM 1 is the machine's own here, there or not
  hand.Type(kMain, "Text105", "kept");
  for (const char* button : {"SaveButton", "NewButton"}) hand.Click(kMain, button);
  EXPECT_NE(ReadFile("../kept.rds"), "");
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5000");
}

TEST_F(WindowsMenuTest, NothingGetsInTheWayOfTheLastEnq) {
  StartWithCoder({"--open", "--late", "40"});
  // The second press comes while the answer to the ENQ is waited for.
  QTimer again;
  QObject::connect(&again, &QTimer::timeout, &again, [] {
    if (QWidget* menu = OnScreen(kMain)) menu->close();
  });
  again.start(1);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(coder->Arrived(), (Lines{"ENQ", "ENQ"}));
}

}  // namespace
}  // namespace corvalis::test
