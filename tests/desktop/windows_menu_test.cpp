// The main menu as a window: start, files, what can't be closed, and the end.

#include <QApplication>
#include <QTimer>

#include "desktop/running_program.h"
#include "link/serial_management.h"

namespace corvalis::test {
namespace {

using Lines = std::vector<std::string>;

class WindowsMenuTest : public RunningProgram {
 protected:
  [[nodiscard]] bool Usable(const char* button) const {
    return hand.Control(kMain, button).isEnabled();
  }
};

TEST_F(WindowsMenuTest, StartsOnItsFileWithTheScreensThatThereAre) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[RDS Setup]\nGroups Enable=On\n");
  EXPECT_EQ(hand.Window(kMain).windowTitle(),
            "  Main Menu                                 -CORVALIS-        V2.02.60724.1");
  EXPECT_EQ(OnScreen(kWait), nullptr);
  EXPECT_EQ(hand.Shown(kMain, "Text105"), "corvalis.rds");
  EXPECT_EQ(hand.Shown(kMain, "RS232CButton"), "SETUP");
  const std::pair<const char*, QString> screens[] = {
      {"TaPtyMsButton", kOnAir}, {"CtTpDiPiButton", kStation}, {"EditGroupsButton", kGroups},
      {"RS232CButton", kSetup},  {"ConnectionButton", {}},     {"PsnRtPinAfButton", {}},
      {"EonLiButton", {}},       {"TdcIhButton", {}}};
  for (const auto& [button, screen] : screens) {
    ASSERT_EQ(Usable(button), !screen.isEmpty()) << button;
    if (screen.isEmpty()) continue;
    hand.Click(kMain, button);
    ASSERT_NE(OnScreen(screen), nullptr) << button;
    // The menu under it takes nothing: neither its close box nor a press.
    PressCloseBox(kMain);
    ClickBeneath(kMain, "NewButton");
    EXPECT_NE(OnScreen(kMain), nullptr);
    EXPECT_NE(OnScreen(screen), nullptr);
    hand.Close(screen);
    EXPECT_EQ(OnScreen(screen), nullptr);
    EXPECT_TRUE(Usable("SaveButton"));
  }
  EXPECT_TRUE(Usable("EditGroupsButton"));  // the press on New was not taken
  EXPECT_EQ(boxes, Lines{});
}

TEST_F(WindowsMenuTest, NewSaveAndOpenActOnTheNameTyped) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[PI]\nCountry=5\nCoverage=3\n");
  hand.Type(kMain, "Text105", "night shift");
  EXPECT_EQ(hand.Shown(kMain, "Text105"), "night shift.rds");
  hand.Click(kMain, "SaveButton");
  EXPECT_NE(ReadFile("night shift.rds").find("Coverage=3\r\n"), std::string::npos);
  // It stands in the list now, and comes back as it was left.
  WriteFile("corvalis.rds", std::string(kLocalFile) + "[PI]\nCountry=5\nCoverage=9\n");
  hand.Click(kMain, "NewButton");
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5900");
  hand.Close(kStation);
  hand.Choose(kMain, "File1", "night shift.rds");
  hand.Click(kMain, "OpenButton");
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5300");
  EXPECT_EQ(coder->Arrived(), (Lines{"ENQ", "ENQ"}));
  EXPECT_EQ(boxes, Lines{});
}

TEST_F(WindowsMenuTest, APortThatIsNotThereIsSaidOnceAndAllElseWorks) {
  Plug("/dev/corvalis-unplugged");
  Start(kLocalFile);
  EXPECT_EQ(boxes, Lines{"COM 1 (/dev/corvalis-unplugged): No such file or directory"});
  EXPECT_FALSE(LinkOpen);
  OpenIdentity();
  hand.Choose(kStation, "CountryCombo", "Switzerland");
  hand.Click(kStation, "SendPiCommand");
  EXPECT_EQ(boxes.size(), 1U);
  hand.Close(kStation);
  hand.Click(kMain, "TaPtyMsButton");
  hand.Click(kOnAir, "Command2");
  EXPECT_EQ(boxes.back(), "TA: [ TX ] serial unconnected  ");
  hand.Close(kOnAir);
  hand.Click(kMain, "SaveButton");
  EXPECT_NE(ReadFile("corvalis.rds").find("Country=4\n"), std::string::npos);
  PressCloseBox(kMain);
  EXPECT_EQ(boxes.size(), 2U);
}

TEST_F(WindowsMenuTest, FoldersThatCannotBeMadeDoNotKeepItFromStarting) {
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    qputenv(variable, "/proc/nobody");
  }
  program = std::make_unique<desktop::Program>();
  program->Start();
  hand.Type(kMain, "Text105", "lost");
  for (const char* button : {"SaveButton", "NewButton"}) hand.Click(kMain, button);
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5000");
  hand.Close(kStation);
}

TEST_F(WindowsMenuTest, ClosingItEndsTheProgramWithAnEnq) {
  StartWithCoder({"--open"});
  OpenIdentity();
  static_cast<void>(coder->Arrived());
  QTimer::singleShot(0, [&] {
    // Not while a screen is open ...
    PressCloseBox(kMain);
    EXPECT_EQ(coder->Arrived(), Lines{});
    hand.Close(kStation);
    // ... then it goes.
    PressCloseBox(kMain);
    EXPECT_EQ(OnScreen(kMain), nullptr);
  });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(coder->Arrived(), Lines{"ENQ"});
  EXPECT_EQ(boxes, Lines{});
}

TEST_F(WindowsMenuTest, NothingGetsInTheWayOfTheLastEnq) {
  StartWithCoder({"--open", "--late", "40"});
  ASSERT_TRUE(LinkOpen);
  // The second press comes while the answer to the ENQ is waited for.
  QTimer again;
  QObject::connect(&again, &QTimer::timeout, &again, [] {
    if (QWidget* menu = OnScreen(kMain)) menu->close();
  });
  again.start(1);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(coder->Arrived(), (Lines{"ENQ", "ENQ"}));
}

TEST_F(WindowsMenuTest, NothingGetsInTheWayOfOpen) {
  StartWithCoder({"--open", "--late", "40"}, std::string(kLocalFile) + "[PI]\nCoverage=3\n");
  EXPECT_GT(InHaste({kMain}, [&] { hand.Click(kMain, "OpenButton"); }), 0);
  EXPECT_EQ(coder->Arrived(), (Lines{"ENQ", "ENQ"}));
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5300");
  EXPECT_EQ(boxes, Lines{});
}

}  // namespace
}  // namespace corvalis::test
