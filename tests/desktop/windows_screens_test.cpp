// What only the real windows can get wrong on the screens: where the keyboard is, what lies over a
// cell, and what an operator may do in the middle of it.

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "desktop/running_program.h"
#include "desktop/widgets/look/mnemonics.h"
#include "networks/eon_data.h"

namespace corvalis::test {
namespace {

using WindowsScreensTest = RunningProgram;

TEST_F(WindowsScreensTest, TurningToTheSwitchesSelectsNone) {
  StartWithCoder({"--open"});
  hand.Click(kMain, "EonLiButton");
  static_cast<void>(coder->Arrived());
  QTabBar& bar = *hand.Window(kNetworks).findChild<QTabBar*>();
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"mouse", [&] { hand.TurnToTab(kNetworks, 2); }},
      {"mnemonic", [&] { StrikeMnemonic(bar.tabText(2)); }},
      {"arrows", [&] {
         bar.setFocus();
         for (int i = 0; i < 2; ++i) Press(Qt::Key_Right);
       }}};
  for (const auto& [name, turn] : ways) {
    hand.TurnToTab(kNetworks, 0);
    hand.Click(kNetworks, "EonPsnText");
    turn();
    ASSERT_EQ(bar.currentIndex(), 2) << name;
    EXPECT_EQ(Focus(), "EONSSTab") << name;
    hand.Click(kNetworks, "SendTaEonCommand");
    EXPECT_EQ(coder->Arrived(), Lines{}) << name;
  }
}

// Whatever the operator goes to, a short number says so once and keeps the keyboard.
TEST_F(WindowsScreensTest, AShortNumberWarnsOnce) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[EON]\nPi0=A1\nPin0=12\n");
  hand.Click(kMain, "EonLiButton");
  static_cast<void>(coder->Arrived());
  QTabBar& bar = *hand.Window(kNetworks).findChild<QTabBar*>();
  const Lines once = {"WARNING! Not Allowed."};
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"the next short box", [&] { hand.Click(kNetworks, "EonPinText"); }},
      {"Tab", [&] { Press(Qt::Key_Tab); }},
      {"Tab back", [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab); }},
      {"a switch", [&] { hand.Click(kNetworks, "EonEnableCheck"); }},
      {"a list", [&] { hand.Click(kNetworks, "EonPtyCombo"); }},
      {"an arrow", [&] { hand.StepUp(kNetworks, "EonListScroll"); }},
      {"a tab", [&] { hand.TurnToTab(kNetworks, 2); }},
      {"the mnemonic of a tab", [&] { StrikeMnemonic(bar.tabText(1)); }},
      {"a button", [&] { hand.Click(kNetworks, "SendEonCommand"); }},
      {"nothing", [&] {
         QTest::mouseClick(&hand.Window(kNetworks), Qt::LeftButton, {}, {3, 3});
       }}};
  hand.Click(kNetworks, "EonPiText");
  for (const auto& [name, go] : ways) {
    go();
    QApplication::processEvents();
    EXPECT_EQ(Boxes(), once) << name;
    static_cast<void>(hand.Window(kNetworks));
    EXPECT_EQ(Focus(), "EonPiText") << name;
  }
  EXPECT_EQ(bar.currentIndex(), 0);
  EXPECT_FALSE(eonData->Enable(0));
  EXPECT_EQ(eonData->CurrentList(), 0);
  EXPECT_EQ(coder->Arrived(), Lines{});
  // Typed anew, it lets the keyboard go; the next one is as short.
  auto& pi = dynamic_cast<QLineEdit&>(hand.Control(kNetworks, "EonPiText"));
  pi.selectAll();
  QTest::keyClicks(&pi, "00A2");
  hand.Click(kNetworks, "EonPinText");
  EXPECT_EQ(Boxes(), Lines{});
  EXPECT_EQ(eonData->Pi(0), 0xA2);
  PressCloseBox(kNetworks);
  EXPECT_EQ(Boxes(), once);
  EXPECT_EQ(OnScreen(kNetworks), nullptr);
  EXPECT_EQ(eonData->Pin(0), 12);
}

// What was shown before the language changed follows it: windows that stand and that are hidden.
TEST_F(WindowsScreensTest, ALanguageIsFollowedAtOnce) {
  WriteFile("Other.ini", "[Words]\nLocale=pt_BR\nDrive=Unidade\nModem=Linha\nText=Texto\n");
  StartWithCoder({"--open"}, std::string(kLocalFile) +
                                 "[Language]\nName0=English\nFileName0=English.ini\n"
                                 "Name1=Other\nFileName1=Other.ini\n");
  const auto shows = [this](const QString& window, const QString& word) {
    QStringList texts;
    for (const auto* part : hand.Window(window).findChildren<QWidget*>()) {
      texts << desktop::PlainCaption(part->property("text").toString())
            << part->property("title").toString();
    }
    return texts.contains(word);
  };
  for (const char* button : {"CtTpDiPiButton", "PsnRtPinAfButton"}) {
    hand.Click(kMain, button);
    hand.Close(button == std::string("CtTpDiPiButton") ? kStation : kTexts);
  }
  hand.Click(kMain, "RS232CButton");
  hand.Choose(kSetup, "LanguageCombo", "Other");
  EXPECT_TRUE(shows(kSetup, "Linha"));
  hand.Close(kSetup);
  EXPECT_TRUE(shows(kMain, "Unidade"));
  hand.Click(kMain, "PsnRtPinAfButton");
  const auto& names = dynamic_cast<QTableView&>(hand.Control(kTexts, "DBGrid1"));
  EXPECT_EQ(names.model()->headerData(2, Qt::Horizontal).toString(), "Texto");
  hand.Close(kTexts);
  hand.Click(kMain, "CtTpDiPiButton");
  const auto& calendar = dynamic_cast<QCalendarWidget&>(hand.Control(kStation, "Calendar1"));
  EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Sunday);
  EXPECT_EQ(QLocale().name(), "pt_BR");  // for windows that are still to come
  EXPECT_TRUE(calendar.accessibleName().contains(
      QLocale("pt_BR").dayName(calendar.selectedDate().dayOfWeek())));
}

TEST_F(WindowsScreensTest, ATypeIsChosenFromTheListOverItsCell) {
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

TEST_F(WindowsScreensTest, TheCoderIsFoundAndNothingGetsInTheWayOfTheSearchAndOfTheClose) {
  Plug("/dev/corvalis-unplugged");
  PlugCoder({"--open", "--late", "40", "--baud", "2400", "--stop-bits", "2"}, 2);
  Start(kLocalFile);
  EXPECT_EQ(Boxes().size(), 1U);
  hand.Click(kMain, "RS232CButton");
  InHaste({kSetup, kMain}, [&] { hand.Click(kSetup, "Command31"); });
  EXPECT_EQ(hand.Shown(kSetup, "SerialCombo"), "COM 2");
  EXPECT_EQ(hand.Shown(kSetup, "BaudrateCombo"), "2400");
  EXPECT_EQ(hand.Shown(kSetup, "ParityCombo"), "none");
  EXPECT_EQ(hand.Shown(kSetup, "StopBitCombo"), "2");
  static_cast<void>(coder->Arrived());
  InHaste({kSetup, kMain}, [&] { hand.Close(kSetup); });
  EXPECT_EQ(OnScreen(kSetup), nullptr);
  EXPECT_EQ(coder->Arrived(), Lines{"ENQ"});
}

}  // namespace
}  // namespace corvalis::test
