// The setup screen as a window: lists for the mouse alone, the search for the Coder, the call, and
// the language.

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <algorithm>

#include "config/config_data.h"
#include "desktop/running_program.h"

namespace corvalis::test {
namespace {

class WindowsSetupTest : public RunningProgram {
 protected:
  void OpenSetup() const { hand.Click(kMain, "RS232CButton"); }
  [[nodiscard]] QString Shown(const char* control) const { return hand.Shown(kSetup, control); }
};

TEST_F(WindowsSetupTest, TheMouseChoosesInAListAndTheKeyboardDoesNot) {
  StartWithCoder({"--open"}, "[Serial Setup]\nSatellite=On\nBurst=4\n");
  OpenSetup();
  for (const char* list : {"RdsOptionCombo", "Combo1", "SerialCombo", "BaudrateCombo",
                           "ParityCombo", "LanguageCombo"}) {
    auto& combo = dynamic_cast<QComboBox&>(hand.Control(kSetup, list));
    const QString before = combo.currentText();
    combo.setFocus(Qt::TabFocusReason);
    ASSERT_EQ(Focus(), list);
    for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_F4, Qt::Key_2, Qt::Key_L}) Press(key);
    EXPECT_FALSE(combo.view()->isVisible()) << list;
    EXPECT_EQ(combo.currentText(), before) << list;
    Press(Qt::Key_Tab);
    EXPECT_NE(Focus(), list);
  }
  EXPECT_FALSE(Usable(kSetup, "Command31"));
  hand.Choose(kSetup, "Combo1", "7  Times");
  hand.Choose(kSetup, "ParityCombo", "odd");
  hand.Choose(kSetup, "BaudrateCombo", "19200");
  hand.Choose(kSetup, "RdsOptionCombo", "Local");
  // Closed with the choice in the list still: nothing is lost, and the line is opened anew.
  EXPECT_EQ(Focus(), "RdsOptionCombo");
  static_cast<void>(coder->Arrived(1));
  hand.Close(kSetup);
  EXPECT_EQ(coder->Arrived(), Lines{"ENQ"});
  EXPECT_FALSE(configData->Satellite());
  EXPECT_EQ(configData->Burst(), 7);
  EXPECT_EQ(configData->Baudrate(), 19200);
  EXPECT_EQ(configData->Parity(), "O");
}

TEST_F(WindowsSetupTest, TheCoderIsFoundAndNothingGetsInTheWayOfTheSearchAndOfTheClose) {
  Plug("/dev/corvalis-unplugged");
  PlugCoder({"--open", "--late", "40", "--baud", "2400", "--stop-bits", "2"}, 2);
  Start(kLocalFile);
  EXPECT_EQ(Boxes().size(), 1U);
  OpenSetup();
  InHaste({kSetup, kMain}, [&] { hand.Click(kSetup, "Command31"); });
  EXPECT_EQ(Shown("SerialCombo"), "COM 2");
  EXPECT_EQ(Shown("BaudrateCombo"), "2400");
  EXPECT_EQ(Shown("ParityCombo"), "none");
  EXPECT_EQ(Shown("StopBitCombo"), "2");
  static_cast<void>(coder->Arrived());
  InHaste({kSetup, kMain}, [&] { hand.Close(kSetup); });
  EXPECT_EQ(OnScreen(kSetup), nullptr);
  EXPECT_EQ(coder->Arrived(), Lines{"ENQ"});
}

TEST_F(WindowsSetupTest, ACallIsDialledAndHungUp) {
  StartWithCoder({"--open", "--modem", "answer", "--dial-ms", "10"},
                 "[Serial Setup]\nSatellite=Off\nModem=On\nModemTone=Off\n");
  OpenSetup();
  hand.Type(kSetup, "Text2", "0415551234");
  hand.Click(kSetup, "Check1");
  hand.Click(kSetup, "Command2");
  EXPECT_FALSE(Usable(kSetup, "Command2"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown("Text1").contains("CONNECT 9600"); }));
  EXPECT_EQ(coder->Arrived(), Lines{"modem: dial T 0415551234 -> CONNECT"});
  hand.Close(kSetup);
  EXPECT_EQ(coder->Arrived(), Lines{"ENQ"});
  OpenSetup();
  hand.Click(kSetup, "Command1");
  EXPECT_TRUE(Usable(kSetup, "Command2"));
  hand.Close(kSetup);
  EXPECT_EQ(coder->Arrived(),
            (Lines{"modem: +++ -> OK", "modem: call ended", "modem: ATH0 -> OK"}));
}

TEST_F(WindowsSetupTest, TheLanguageChangesOnEveryScreenAtOnce) {
  WriteFile("Deutsch.ini",
            "[MAIN]\nSetupKeyMsg=EINSTELLUNGEN\n[SETUP]\nSerialPortTxtMsg=Schnittstelle f\xFCr\n"
            "[MESSAGE]\nWaitKeyMsg=Bitte warten!\n");
  StartWithCoder({"--open"}, std::string(kLocalFile) +
                                 "[Language]\nDefault=0\nName0=English\nFileName0=English.ini\n"
                                 "Name1=Deutsch\nFileName1=Deutsch.ini\n");
  OpenSetup();
  hand.Choose(kSetup, "LanguageCombo", "Deutsch");
  EXPECT_EQ(Shown("SerialLabel"), QString::fromUtf8("Schnittstelle f\xC3\xBCr"));
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto wait = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->objectName() == kWait;
  });
  ASSERT_NE(wait, windows.end());
  EXPECT_EQ((*wait)->findChild<QLabel*>("WaitMessage")->text(), "Bitte warten!");
  EXPECT_EQ(hand.Shown(kMain, "RS232CButton"), "EINSTELLUNGEN");
}

}  // namespace
}  // namespace corvalis::test
