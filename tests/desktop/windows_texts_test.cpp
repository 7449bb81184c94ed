// The screen of names, texts and frequencies on real windows.

#include <QApplication>
#include <QComboBox>
#include <QTableView>
#include <QTest>

#include "desktop/running_program.h"

namespace corvalis::test {
namespace {

using WindowsTextsTest = RunningProgram;

TEST_F(WindowsTextsTest, ATypeIsChosenFromTheListOverItsCell) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[PIN]\nPin002=25;12:00;01;Off\n");
  hand.Click(kMain, "PsnRtPinAfButton");
  hand.TurnToTab(kTexts, QStringLiteral("PIN"));
  auto& table = dynamic_cast<QTableView&>(hand.Control(kTexts, "DBGrid4"));
  hand.GoToCell(kTexts, "DBGrid4", 2, 3);
  auto& list = dynamic_cast<QComboBox&>(hand.Control(kTexts, "Combo1"));
  EXPECT_EQ(list.geometry(), table.visualRect(table.currentIndex()));
  EXPECT_EQ(list.currentText(), "News");
  // From the keyboard: into the list, which opens, and one further down.
  Press(Qt::Key_F2);
  EXPECT_EQ(Focus(), "Combo1");
  Press(Qt::Key_Down);
  ASSERT_TRUE(list.view()->isVisible());
  QTest::keyClick(list.view(), Qt::Key_Down);
  EXPECT_EQ(hand.ShownCell(kTexts, "DBGrid4", 2, 3), "News");
  QTest::keyClick(list.view(), Qt::Key_Return);
  EXPECT_EQ(hand.ShownCell(kTexts, "DBGrid4", 2, 3), "Current Affairs");
  EXPECT_EQ(Focus(), "DBGrid4");
  EXPECT_EQ(table.currentIndex(), table.model()->index(2, 3));
  hand.Click(kTexts, "Command8");
  EXPECT_EQ(Held("PIN 02"), "0002CB00");
  // The screen goes though the list stands open, and comes again without it.
  hand.GoToCell(kTexts, "DBGrid4", 1, 3);
  hand.Control(kTexts, "Combo1").setFocus();
  Press(Qt::Key_Down);
  PressCloseBox(kTexts);
  EXPECT_EQ(OnScreen(kTexts), nullptr);
  hand.Click(kMain, "PsnRtPinAfButton");
  hand.TurnToTab(kTexts, QStringLiteral("PIN"));
  EXPECT_FALSE(list.isVisible());
}

TEST_F(WindowsTextsTest, EscDropsWhatIsTypedBeforeTheScreenGoes) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[RT]\nRt01=10;OLD;\n");
  hand.Click(kMain, "PsnRtPinAfButton");
  hand.TurnToTab(kTexts, QStringLiteral("RT"));
  hand.GoToCell(kTexts, "DBGrid3", 1, 2);
  hand.Strike(QStringLiteral("NEW"));
  QTest::mouseClick(&hand.Window(kTexts), Qt::LeftButton, {}, {3, 3});  // beside everything
  QTest::keyClick(hand.Window(kTexts).windowHandle(), Qt::Key_Escape);
  QApplication::processEvents();
  ASSERT_NE(OnScreen(kTexts), nullptr);
  EXPECT_EQ(hand.ShownCell(kTexts, "DBGrid3", 1, 2).trimmed(), "OLD");
  QTest::keyClick(hand.Window(kTexts).windowHandle(), Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_EQ(OnScreen(kTexts), nullptr);
}

}  // namespace
}  // namespace corvalis::test
