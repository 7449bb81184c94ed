// The operator's hands: keys that are held, clicks in haste, windows closed in a bad moment.

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "desktop/running_program.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/presses/held_keys.h"
#include "link/serial_management.h"

namespace corvalis::test {
namespace {

TEST(HeldKeysTest, ARepetitionIsKnownByTheKeyThatWasNotLetGo) {
  constexpr auto kDown = QEvent::KeyPress;
  constexpr auto kUp = QEvent::KeyRelease;
  struct Step {
    QEvent::Type type;
    bool marked;
    quint64 at;
    bool repeats;
  };
  const std::pair<const char*, std::vector<Step>> cases[] = {
      {"struck twice",
       {{kDown, false, 9, false}, {kUp, false, 20, false}, {kDown, false, 40, false}}},
      {"marked", {{kDown, false, 9, false}, {kUp, true, 20, false}, {kDown, true, 20, true}}},
      {"the mark is lost",
       {{kDown, false, 9, false}, {kUp, false, 20, false}, {kDown, false, 20, true}}},
      {"the release is lost", {{kDown, false, 9, false}, {kDown, false, 5000, true}}},
  };
  for (const auto& [name, steps] : cases) {
    desktop::HeldKeys keys;
    for (const Step& step : steps) {
      QKeyEvent event(step.type, Qt::Key_Return, {}, 36, 0, 0, "\r", step.marked);
      event.setTimestamp(step.at);
      EXPECT_EQ(keys.Repeats(event), step.repeats) << name << " at " << step.at;
    }
  }
  // Let go in another program.
  desktop::HeldKeys keys;
  QKeyEvent event(kDown, Qt::Key_Return, {}, 36, 0, 0, "\r");
  static_cast<void>(keys.Repeats(event));
  keys.Away();
  event.setTimestamp(1500);
  EXPECT_FALSE(keys.Repeats(event));
}

class WindowsHandsTest : public RunningProgram {
 protected:
  // As from the window system, which knows windows only.
  static void Strike(const QString& window, Qt::Key key) {
    QTest::keyPress(OnScreen(window)->windowHandle(), key);
  }
  static void LetGo(const QString& window, Qt::Key key) {
    QTest::keyRelease(OnScreen(window)->windowHandle(), key);
  }
};

TEST_F(WindowsHandsTest, AKeyHeldDownPressesAButtonOnce) {
  StartWithCoder({"--open"});
  OpenIdentity();
  hand.Control(kStation, "SendPiCommand").setFocus();
  static_cast<void>(coder->Arrived());
  during_transfer = [&] {
    for (const auto key : {Qt::Key_Return, Qt::Key_Return}) Strike(kTransfer, key);
    EXPECT_FALSE(EscPressed);
  };
  Strike(kStation, Qt::Key_Return);
  for (int i = 0; i < 3; ++i) Strike(kStation, Qt::Key_Return);
  EXPECT_EQ(coder->Arrived().size(), 1U);
  EXPECT_EQ(LinkError, kLinkOk);
  LetGo(kStation, Qt::Key_Return);
  Strike(kStation, Qt::Key_Return);
  EXPECT_EQ(coder->Arrived().size(), 1U);
}

TEST_F(WindowsHandsTest, WhatStandsInFrontOfADisabledWindowHasTheKeyboard) {
  StartWithCoder({"--open", "--silent"}, "[Serial Setup]\nSatellite=Off\nModem=On\n");
  OpenIdentity();
  static_cast<void>(hand.Window(kStation));
  OnScreen(kMain)->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([] { return OnScreen(kStation)->isActiveWindow(); }));
  during_transfer = [&] {
    for (const QString& beneath : {kMain, kStation}) {
      OnScreen(beneath)->activateWindow();
      EXPECT_TRUE(QTest::qWaitFor([] { return OnScreen(kTransfer)->isActiveWindow(); }));
    }
    // A press on the ground, and the second press of a double click that fell on the button.
    QTest::mouseClick(OnScreen(kTransfer), Qt::LeftButton, {}, {3, 3});
    QWidget& esc = hand.Control(kTransfer, "Command1");
    QWindow* transfer = OnScreen(kTransfer)->windowHandle();
    QTest::mousePress(OnScreen(kStation)->windowHandle(), Qt::LeftButton, {}, {3, 3});
    QTest::mouseDClick(transfer, Qt::LeftButton, {}, esc.geometry().center());
    EXPECT_EQ(Focus(), "Command1");
    Strike(kStation, Qt::Key_Escape);  // the window system is late in moving the keyboard
    EXPECT_TRUE(EscPressed);
  };
  hand.Click(kStation, "SendPiCommand");
  EXPECT_EQ(LinkError, kErrorAborted);
  // Struck twice in haste, it was meant for the transfer alone.
  static_cast<void>(hand.Window(kStation));
  LetGo(kStation, Qt::Key_Escape);
  Strike(kStation, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_NE(OnScreen(kStation), nullptr);
}

TEST_F(WindowsHandsTest, ASecondPressOnTheCloseBoxFindsTheWindowStillThere) {
  StartWithCoder({"--open", "--late", "40"});
  hand.Click(kMain, "RS232CButton");
  for (const QString& closing : {kSetup, kMain}) {
    int presses = 0;
    QTimer again;
    QObject::connect(&again, &QTimer::timeout, &again, [&] {
      if (OnScreen(kWait) == nullptr) return;
      ++presses;
      OnScreen(closing)->windowHandle()->close();
      EXPECT_NE(OnScreen(closing), nullptr);
      EXPECT_NE(OnScreen(closing)->windowHandle(), nullptr);
      EXPECT_TRUE(OnScreen(closing)->windowHandle()->isVisible());
    });
    again.start(1);
    OnScreen(closing)->windowHandle()->close();
    QApplication::processEvents();
    EXPECT_GT(presses, 0) << closing.toStdString();
    EXPECT_EQ(OnScreen(closing), nullptr);
  }
}

TEST_F(WindowsHandsTest, EscClosesAWorkingScreenAndNothingElse) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[RDS Setup]\nGroups Enable=On\n");
  static_cast<void>(hand.Window(kMain));
  Press(Qt::Key_Escape);
  EXPECT_NE(OnScreen(kMain), nullptr);
  const std::pair<const char*, QString> screens[] = {{"TaPtyMsButton", kOnAir},
                                                     {"CtTpDiPiButton", kStation},
                                                     {"EditGroupsButton", kGroups},
                                                     {"RS232CButton", kSetup}};
  for (const auto& [button, screen] : screens) {
    hand.Click(kMain, button);
    static_cast<void>(hand.Window(screen));
    if (auto* list = OnScreen(screen)->findChild<QComboBox*>();
        list != nullptr && list->isVisible()) {
      list->showPopup();
      QTest::keyClick(list->view(), Qt::Key_Escape);
      QApplication::processEvents();
      EXPECT_FALSE(list->view()->isVisible());
    }
    QWidget& window = hand.Window(screen);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, {}, true);  // from the transfer before
    QApplication::sendEvent(window.focusWidget() != nullptr ? window.focusWidget() : &window,
                            &held);
    QApplication::processEvents();
    ASSERT_NE(OnScreen(screen), nullptr) << button;
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(OnScreen(screen), nullptr) << button;
  }
}

TEST_F(WindowsHandsTest, AMnemonicPressesMovesAndTurns) {
  StartWithCoder({"--open"});
  OpenIdentity();
  static_cast<void>(coder->Arrived());
  StrikeMnemonic(dynamic_cast<QPushButton&>(hand.Control(kStation, "SendEccCommand")).text());
  EXPECT_EQ(coder->Arrived().size(), 1U);
  StrikeMnemonic(dynamic_cast<QLabel&>(hand.Control(kStation, "CoverageLabel")).text());
  EXPECT_EQ(Focus(), "CoverageCombo");
  auto& bar = dynamic_cast<QTabBar&>(hand.Control(kStation, "SSTab1"));
  StrikeMnemonic(bar.tabText(1));
  EXPECT_EQ(bar.currentIndex(), 1);
}

TEST(MnemonicsTest, ACaptionShowsAsItStandsAndEveryOneThatCanGetsALetter) {
  QWidget window;
  const char* captions[] = {"A", "AB", "ABC", "R&D", "3A", "3B"};
  std::vector<QPushButton*> buttons;
  for (const char* caption : captions) {
    buttons.push_back(new QPushButton(&window));
    desktop::ShowCaption(*buttons.back(), caption);
  }
  desktop::GiveMnemonics(window);
  QStringList shown;
  for (const QPushButton* button : buttons) {
    shown << button->text();
    EXPECT_EQ(desktop::PlainCaption(button->text()), captions[shown.size() - 1]);
  }
  EXPECT_EQ(shown, QStringList({"&A", "A&B", "AB&C", "&R&&D", "&3A", "3B"}));
}

}  // namespace
}  // namespace corvalis::test
