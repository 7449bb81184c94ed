// The on-air screen and the group sequence as windows.

#include "desktop/running_program.h"

namespace corvalis::test {
namespace {

class WindowsStationTest : public RunningProgram {
 protected:
  // TA stands at on, for whoever looks at the screen and for the Coder.
  void ExpectAnnouncement(bool on) {
    for (const auto& [indicator, lit] : {std::pair("Check3", on), std::pair("Check4", !on)}) {
      const QWidget& shown = *hand.Window(kOnAir).findChild<QWidget*>(indicator);
      EXPECT_EQ(shown.isVisible(), lit) << indicator;
    }
    EXPECT_EQ(Held("TA 00"), on ? "1" : "0");
  }
};

TEST_F(WindowsStationTest, TheAnnouncementGoesOnAndOffByOneKey) {
  StartWithCoder({"--open"});
  hand.Click(kMain, "TaPtyMsButton");
  // The keyboard gets there by itself, and stays there.
  static_cast<void>(hand.Window(kOnAir));
  for (int i = 0; i < 8 && Focus() != "Command2"; ++i) Press(Qt::Key_Tab);
  for (const bool on : {true, false}) {
    ASSERT_EQ(Focus(), "Command2");
    Press(on ? Qt::Key_Space : Qt::Key_Return);
    ExpectAnnouncement(on);
  }
  // The indicator shows, and can't be changed.
  hand.Click(kOnAir, "Check4");
  ExpectAnnouncement(false);
}

TEST_F(WindowsStationTest, AllGroupsGoOutAndComeBack) {
  StartWithCoder({"--open"}, std::string(kLocalFile) +
                                 "[RDS Setup]\nGroups Enable=On\nGroups B Enable=On\n"
                                 "[Groups]\nGroup00A=03;On\nGroup02A=04;On\n");
  hand.Click(kMain, "EditGroupsButton");
  hand.Click(kGroups, "Check1(16)");
  hand.StepUp(kGroups, "VScroll2(16)");
  EXPECT_EQ(hand.Shown(kGroups, "PercentText(0)"), "50 %");
  static_cast<void>(coder->Arrived());
  hand.Click(kGroups, "Command1");
  const Lines sent = coder->Arrived();
  ASSERT_EQ(sent.size(), 32U);
  EXPECT_EQ(sent[0], "Enable 0 <- 0103 (group 0A on, repetitions 3)");
  EXPECT_EQ(sent[16], "Enable 16 <- 0101 (group 0B on, repetitions 1)");
  // What the Coder holds comes back over what the screen holds.
  hand.StepDown(kGroups, "VScroll2(2)");
  EXPECT_EQ(hand.Shown(kGroups, "Text1(2)"), "003");
  hand.Click(kGroups, "Command13");
  EXPECT_EQ(hand.Shown(kGroups, "Text1(2)"), "004");
}

}  // namespace
}  // namespace corvalis::test
