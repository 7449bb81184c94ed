// The screens of other networks and data channels on real windows.

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QWindow>

#include "desktop/running_program.h"
#include "link/serial_management.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"

namespace corvalis::test {
namespace {

class WindowsNetworksTest : public RunningProgram {
 protected:
  void OpenNetworks(const std::string& file = {}) {
    StartWithCoder({"--open"}, kLocalFile + file);
    hand.Click(kMain, "EonLiButton");
    static_cast<void>(coder->Arrived());
  }
  void OpenChannels(const std::string& file = {}) {
    StartWithCoder({"--open"}, kLocalFile + file);
    hand.Click(kMain, "TdcIhButton");
    static_cast<void>(coder->Arrived());
  }
  QTabBar& Bar(const QString& window) const { return *hand.Window(window).findChild<QTabBar*>(); }
  void StrikeMnemonic(const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    ASSERT_FALSE(key.isEmpty()) << text.toStdString();
    QTest::keyClick(QApplication::focusWidget(), key[0].key(), Qt::AltModifier);
  }
  void ClickCell(const QString& grid, int row, int column) const {
    auto& table = dynamic_cast<QTableView&>(hand.Control(kChannels, grid));
    const QRect cell = table.visualRect(table.model()->index(row, column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
  }
};

TEST_F(WindowsNetworksTest, TurningToTheSwitchesSelectsNone) {
  OpenNetworks();
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"mouse", [&] { hand.TurnToTab(kNetworks, 2); }},
      {"mnemonic", [&] { StrikeMnemonic(Bar(kNetworks).tabText(2)); }},
      {"arrows", [&] {
         Bar(kNetworks).setFocus();
         for (int i = 0; i < 2; ++i) Press(Qt::Key_Right);
       }}};
  for (const auto& [name, turn] : ways) {
    hand.TurnToTab(kNetworks, 0);
    hand.Click(kNetworks, "EonPsnText");
    turn();
    ASSERT_EQ(Bar(kNetworks).currentIndex(), 2) << name;
    EXPECT_EQ(Focus(), "EONSSTab") << name;
    hand.Click(kNetworks, "SendTaEonCommand");
    EXPECT_EQ(coder->Arrived(), Lines{}) << name;
  }
  hand.Click(kNetworks, "TaEonCheck(3)");
  EXPECT_TRUE(eonData->Ta(3));
  hand.Click(kNetworks, "SendTaEonCommand");
  EXPECT_EQ(coder->Arrived(), Lines{"EON TA 3 <- 1 (on)"});
  hand.Close(kNetworks);
  hand.Click(kMain, "EonLiButton");
  hand.TurnToTab(kNetworks, 2);
  hand.Click(kNetworks, "SendTaEonCommand");
  EXPECT_EQ(coder->Arrived(), Lines{});
}

// Whatever the operator goes to, a short number says so once and keeps the keyboard.
TEST_F(WindowsNetworksTest, AShortNumberWarnsOnce) {
  OpenNetworks("[EON]\nPi0=A1\nPin0=12\n");
  const Lines once = {"WARNING! Not Allowed."};
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"the next short box", [&] { hand.Click(kNetworks, "EonPinText"); }},
      {"Tab", [&] { Press(Qt::Key_Tab); }},
      {"Tab back", [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab); }},
      {"a switch", [&] { hand.Click(kNetworks, "EonEnableCheck"); }},
      {"a list", [&] { hand.Click(kNetworks, "EonPtyCombo"); }},
      {"an arrow", [&] { hand.StepUp(kNetworks, "EonListScroll"); }},
      {"a tab", [&] { hand.TurnToTab(kNetworks, 2); }},
      {"the mnemonic of a tab", [&] { StrikeMnemonic(Bar(kNetworks).tabText(1)); }},
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
  EXPECT_EQ(Bar(kNetworks).currentIndex(), 0);
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

TEST_F(WindowsNetworksTest, TheTableUnderTheMouseIsTheSelectedOne) {
  OpenChannels();
  hand.Click(kChannels, "Command5");
  Lines sent = coder->Arrived();
  ASSERT_EQ(sent.size(), 1U);
  ClickCell("DBGrid2", 0, 2);
  EXPECT_EQ(Focus(), "DBGrid2");
  hand.Strike(QStringLiteral("1"));
  Press(Qt::Key_Down);
  Press(Qt::Key_Up);
  hand.Click(kChannels, "Command5");
  sent = coder->Arrived();
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_EQ(Held("TDC 00"), "100000000");
  // A short command stays where it is, whatever is done elsewhere, until ESC.
  ClickCell("DBGrid1", 1, 2);
  hand.Strike(QStringLiteral("101"));
  EXPECT_EQ(beeps, 0);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(beeps, 2);
  ClickCell("DBGrid2", 3, 1);
  hand.Click(kChannels, "Command5");
  EXPECT_EQ(coder->Arrived().size(), 1U);
  EXPECT_EQ(hand.ShownCell(kChannels, "DBGrid1", 1, 2), "101");
  EXPECT_EQ(tdc0Data->Command(1), std::string(20, '0'));
  ClickCell("DBGrid1", 4, 2);
  EXPECT_EQ(beeps, 3);
  for (int i = 0; i < 2; ++i) Press(Qt::Key_Escape);
  EXPECT_EQ(hand.ShownCell(kChannels, "DBGrid1", 1, 2).toStdString(), std::string(20, '0'));
  ASSERT_NE(OnScreen(kChannels), nullptr);
  // A key that is held down fills the cell and no more.
  for (int i = 0; i < 25; ++i) hand.Strike(QStringLiteral("1"));
  Press(Qt::Key_Down);
  EXPECT_EQ(tdc0Data->Command(1), std::string(20, '1'));
  EXPECT_EQ(beeps, 8);
}

TEST_F(WindowsNetworksTest, ALongReadIsNotClosedAndEndsByEsc) {
  OpenChannels();
  during_transfer = [&] {
    ExpectNotToClose({kChannels, kMain});
    ClickBeneath(kChannels, "Command6");
    QTest::keyClick(OnScreen(kTransfer)->windowHandle(), Qt::Key_Escape);
  };
  hand.Click(kChannels, "Command3");
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_LT(coder->Arrived().size(), 131U);
  EXPECT_EQ(Boxes(), Lines{});
  EXPECT_NE(OnScreen(kChannels), nullptr);
}

TEST_F(WindowsNetworksTest, APageIsChosenTypedAndFoundByHand) {
  WriteFile("news.txt", "NEWS");
  OpenChannels();
  hand.TurnToTab(kChannels, 1);
  hand.Choose(kChannels, "Combo1", "Page01");
  EXPECT_EQ(hand.Shown(kChannels, "Text105"), "Page00.txt");
  hand.Click(kChannels, "Command8");
  EXPECT_EQ(hand.Shown(kChannels, "Text105"), "Page01.txt");
  EXPECT_EQ(hand.Shown(kChannels, "Combo1"), "Page01");
  auto& text = dynamic_cast<QPlainTextEdit&>(hand.Control(kChannels, "RichTextBox1"));
  QTest::mouseClick(text.viewport(), Qt::LeftButton);
  EXPECT_EQ(Focus(), "RichTextBox1");
  QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
  hand.Strike(QStringLiteral("Two"));
  Press(Qt::Key_Return);
  hand.Strike(QStringLiteral("lines"));
  EXPECT_EQ(ihData->Page(1).substr(0, 11), "Two\r\nlines ");
  EXPECT_EQ(ihData->Page(0).substr(0, 13), "Default Page ");

  auto& files = dynamic_cast<QListWidget&>(hand.Control(kChannels, "File1"));
  const auto found = files.findItems("news.txt", Qt::MatchExactly);
  ASSERT_EQ(found.size(), 1);
  const QPoint at = files.visualItemRect(found.front()).center();
  QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(hand.Shown(kChannels, "Text105"), "Page01.txt");
  QTest::mouseDClick(files.viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(hand.Shown(kChannels, "Text105"), "news.txt");
  EXPECT_EQ(ihData->FileName(1), "news.txt");
  EXPECT_EQ(ihData->Page(1).substr(0, 3), "Two");  // not loaded
  hand.Click(kChannels, "Command15");
  EXPECT_EQ(hand.Shown(kChannels, "RichTextBox1"), "NEWS");
  hand.Click(kChannels, "Command16");
  EXPECT_EQ(ReadFile("news.txt").size(), 2050U);
  // What is undone is never the text of another page.
  ihData->SetPage(2, "NEWSPAPER");
  hand.Choose(kChannels, "Combo1", "Page02");
  QTest::mouseClick(text.viewport(), Qt::LeftButton);
  QTest::keyClick(&text, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ihData->Page(2).substr(0, 10), "NEWSPAPER ");

  hand.Click(kChannels, "Check1(1)");
  hand.Click(kChannels, "Command11");
  EXPECT_EQ(coder->Arrived().size(), 17U);
}

TEST_F(WindowsNetworksTest, AMessageIsSentAsItIsTyped) {
  OpenChannels("[RDS Setup]\nTMC Enable=On\n");
  hand.TurnToTab(kChannels, 3);
  hand.GoToCell(kChannels, "TmcDBGrid", 1, 1);
  hand.Strike(QStringLiteral("65535"));
  hand.Click(kChannels, "SendTmcCommand");
  EXPECT_EQ(Held("TMC 01"), "000FFFF00000");
  ClickCell("TmcDBGrid", 1, 4);
  EXPECT_EQ(hand.ShownCell(kChannels, "TmcDBGrid", 1, 4), "On");
  hand.Click(kChannels, "SendTmcCommand");
  EXPECT_EQ(Held("TMC 01"), "000FFFF10000");
  ClickCell("TmcDBGrid", 2, 2);  // the second press on a cell opens it
  ClickCell("TmcDBGrid", 2, 2);
  hand.Strike(QStringLiteral("2048"));
  PressCloseBox(kChannels);
  EXPECT_EQ(OnScreen(kChannels), nullptr);
  EXPECT_EQ(tmcData->Events(2), 0);
}

TEST_F(WindowsNetworksTest, MessagesAreOfferedOnlyWhereTheyAreEnabled) {
  OpenChannels("[RDS Setup]\nTMC Enable=Off\n");
  QTabBar& bar = Bar(kChannels);
  for (const int tab : {2, 3}) {
    hand.TurnToTab(kChannels, tab);
    EXPECT_EQ(bar.currentIndex(), 0);
    const QString text = bar.tabText(tab);
    if (text.contains(u'&')) StrikeMnemonic(text);
    EXPECT_EQ(bar.currentIndex(), 0);
  }
  bar.setFocus();
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Right);
  EXPECT_EQ(bar.currentIndex(), 1);
  // A box of several lines leaves ESC to the screen too.
  hand.Control(kChannels, "RichTextBox1").setFocus();
  Press(Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_EQ(OnScreen(kChannels), nullptr);
}

}  // namespace
}  // namespace corvalis::test
