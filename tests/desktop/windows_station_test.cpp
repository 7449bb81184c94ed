// The on-air screen and the group sequence as windows.

#include <QApplication>
#include <QTest>

#include "config/config_data.h"
#include "desktop/running_program.h"
#include "link/serial_management.h"

namespace corvalis::test {
namespace {

using Lines = std::vector<std::string>;

class WindowsStationTest : public RunningProgram {
 protected:
  [[nodiscard]] bool Seen(const char* control) const {
    return hand.Window(kOnAir).findChild<QWidget*>(control)->isVisible();
  }
};

TEST_F(WindowsStationTest, TheAnnouncementGoesOnAndOffByOneKey) {
  StartWithCoder({"--open"});
  hand.Click(kMain, "TaPtyMsButton");
  EXPECT_TRUE(Seen("Check4"));
  EXPECT_FALSE(Seen("Check3"));
  // The keyboard gets there by itself.
  static_cast<void>(hand.Window(kOnAir));
  for (int i = 0; i < 8 && Focus() != "Command2"; ++i) Press(Qt::Key_Tab);
  ASSERT_EQ(Focus(), "Command2");
  static_cast<void>(coder->Arrived());
  Press(Qt::Key_Space);
  EXPECT_TRUE(Seen("Check3"));
  EXPECT_FALSE(Seen("Check4"));
  EXPECT_EQ(Held("TA 00"), "1");
  // The key has stayed where it was.
  static_cast<void>(hand.Window(kOnAir));
  ASSERT_EQ(Focus(), "Command2");
  Press(Qt::Key_Return);
  EXPECT_TRUE(Seen("Check4"));
  EXPECT_EQ(Held("TA 00"), "0");
  // The indicator shows, and can't be changed.
  hand.Click(kOnAir, "Check4");
  EXPECT_TRUE(Seen("Check4"));
  EXPECT_EQ(coder->Arrived(), Lines{});
  EXPECT_EQ(boxes, Lines{});
}

TEST_F(WindowsStationTest, AProgrammeTypeIsStoredWhenItsListIsLeft) {
  StartWithCoder({"--open"});
  hand.Click(kMain, "TaPtyMsButton");
  hand.Choose(kOnAir, "Combo1", "10  Pop Music");
  hand.Click(kOnAir, "Command1");
  EXPECT_EQ(Held("PTY 00"), "0A");
  hand.Choose(kOnAir, "Combo1", "16  Weather");
  hand.Close(kOnAir);
  EXPECT_EQ(configData->Pty(), 16);
  EXPECT_EQ(Held("PTY 00"), "0A");
  EXPECT_EQ(boxes, Lines{});
}

TEST_F(WindowsStationTest, OnAOneWayPathALiveButtonNeedsNoAddress) {
  StartWithCoder({"--open"}, "[Serial Setup]\nSatellite=On\nBurst=4\n");
  static_cast<void>(coder->Arrived(1));
  hand.Click(kMain, "TaPtyMsButton");
  EXPECT_FALSE(Seen("Command8"));
  hand.Click(kOnAir, "Command2");
  EXPECT_EQ(coder->Arrived(4), Lines(4, "TA <- 1 (on)"));
  EXPECT_EQ(boxes, Lines{});
}

TEST_F(WindowsStationTest, AllGroupsGoOutThatTheCoderHas) {
  for (const bool b_groups : {true, false}) {
    StartWithCoder({"--open"},
                   std::string(kLocalFile) + "[RDS Setup]\nGroups Enable=On\nGroups B Enable=" +
                       (b_groups ? "On" : "Off") + "\n[Groups]\nGroup00A=03;On\nGroup02A=04;On\n");
    hand.Click(kMain, "EditGroupsButton");
    EXPECT_EQ(hand.Control(kGroups, "Check1(16)").isEnabled(), b_groups);
    if (b_groups) {
      hand.Click(kGroups, "Check1(16)");
      hand.StepUp(kGroups, "VScroll2(16)");
    }
    EXPECT_EQ(hand.Shown(kGroups, "PercentText(0)"), b_groups ? "50 %" : "43 %");
    static_cast<void>(coder->Arrived());
    hand.Click(kGroups, "Command1");
    const Lines sent = coder->Arrived();
    ASSERT_EQ(sent.size(), b_groups ? 32U : 16U);
    EXPECT_EQ(sent[0], "Enable 0 <- 0103 (group 0A on, repetitions 3)");
    if (b_groups) {
      EXPECT_EQ(sent[16], "Enable 16 <- 0101 (group 0B on, repetitions 1)");
    }
    // What the Coder holds comes back over what the screen holds.
    hand.StepDown(kGroups, "VScroll2(2)");
    EXPECT_EQ(hand.Shown(kGroups, "Text1(2)"), "003");
    hand.Click(kGroups, "Command13");
    EXPECT_EQ(hand.Shown(kGroups, "Text1(2)"), "004");
    hand.Close(kGroups);
    EXPECT_EQ(boxes, Lines{});
    program.reset();
    coder.reset();
  }
}

TEST_F(WindowsStationTest, EscStopsASeriesWhereItStands) {
  StartWithCoder({"--open", "--pace", "--late", "5"},
                 std::string(kLocalFile) + "[RDS Setup]\nGroups Enable=On\n");
  hand.Click(kMain, "EditGroupsButton");
  static_cast<void>(coder->Arrived());
  during_transfer = [&] {
    static_cast<void>(hand.Window(kTransfer));
    Press(Qt::Key_Escape);
  };
  hand.Click(kGroups, "Command1");
  EXPECT_EQ(LinkError, kErrorAborted);
  const std::size_t sent = coder->Arrived().size();
  EXPECT_GE(sent, 1U);
  EXPECT_LT(sent, 16U);
  EXPECT_EQ(boxes, Lines{});
  hand.Click(kGroups, "Command11");
  EXPECT_EQ(LinkError, kLinkOk);
}

}  // namespace
}  // namespace corvalis::test
