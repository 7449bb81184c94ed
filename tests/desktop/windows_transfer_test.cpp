// The road of a transfer through the real windows and the real port, to the Coder and back; and
// what an operator may do meanwhile.

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <QImage>
#include <QLineEdit>
#include <QTest>

#include "desktop/own_line.h"
#include "desktop/running_program.h"
#include "desktop/widgets/look/style.h"
#include "link/serial_management.h"

namespace corvalis::test {
namespace {

const std::string kSentPi = "PI <- 5000 (country 5, coverage 0, programme 00)";

class WindowsTransferTest : public RunningProgram {
 protected:
  // Pixels of the busy bar that are filled.
  [[nodiscard]] int Filled() const {
    const QImage bar = hand.Control(kTransfer, "ProgressBar1").grab().toImage();
    int filled = 0;
    for (int x = 0; x < bar.width(); ++x) {
      if (bar.pixel(x, bar.height() / 2) == QColor(desktop::colours::kAccent).rgb()) ++filled;
    }
    return filled;
  }
  // The station screen can be used again, and nothing of an aborted transfer is left.
  void ExpectAborted() const {
    EXPECT_EQ(LinkError, kErrorAborted);
    EXPECT_FALSE(EscPressed);
    EXPECT_EQ(OnScreen(kTransfer), nullptr);
    hand.Choose(kStation, "CoverageCombo", "Regional 3");
    EXPECT_EQ(hand.Shown(kStation, "PiText"), "5600");
    hand.Choose(kStation, "CoverageCombo", "Local");
  }
};

TEST_F(WindowsTransferTest, FromAFileToTheCoderAndBackToTheFile) {
  WriteFile("alps.rds", std::string(kLocalFile) + "; kept\n[PI]\nCountry=5\nProgram Number=2A\n");
  StartWithCoder({"--open"});
  hand.Choose(kMain, "File1", "alps.rds");
  hand.Click(kMain, "OpenButton");
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "502A");
  hand.Choose(kStation, "CountryCombo", "Switzerland");
  hand.Choose(kStation, "CoverageCombo", "National");
  hand.StepUp(kStation, "VScroll3");
  EXPECT_EQ(hand.Shown(kStation, "EccText"), "E1");
  static_cast<void>(coder->Arrived());
  for (const char* button : {"SendPiCommand", "SendEccCommand", "SendLicCommand"}) {
    hand.Click(kStation, button);
  }
  EXPECT_EQ(coder->Arrived(),
            (Lines{"PI <- 422B (country 4, coverage 2, programme 2B)", "ECC <- E1", "LIC <- 15"}));
  hand.Type(kStation, "PiText", "1abc");
  hand.Click(kStation, "ReadPiCommand");
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "422B");
  EXPECT_EQ(hand.Shown(kStation, "CountryCombo"), "Switzerland");

  hand.Close(kStation);
  hand.Click(kMain, "SaveButton");
  const std::string saved = ReadFile("alps.rds");
  for (const char* line : {"; kept\n", "Country=4\n", "Coverage=2\n", "Program Number=2B\n"}) {
    EXPECT_NE(saved.find(line), std::string::npos) << line << saved;
  }
  hand.Type(kMain, "Text105", "night shift");
  hand.Click(kMain, "SaveButton");
  EXPECT_NE(ReadFile("night shift.rds").find("Coverage=2\r\n"), std::string::npos);
  hand.Click(kMain, "NewButton");
  OpenIdentity();
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5000");
}

TEST_F(WindowsTransferTest, WhatTheRulesRefuseIsRefusedInTheWindow) {
  StartWithCoder({"--open"});
  OpenIdentity();
  for (const char* list : {"CountryCombo", "CoverageCombo", "LicCombo"}) {
    const QString before = hand.Shown(kStation, list);
    beeps = 0;
    QTest::keyClicks(&hand.Control(kStation, list), "sP7 ");
    EXPECT_EQ(beeps, 4) << list;
    EXPECT_EQ(hand.Shown(kStation, list), before) << list;
  }
  // A fifth character, and characters of no PI.
  beeps = 0;
  hand.Type(kStation, "PiText", "1g2-3c4d");
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "123C");
  EXPECT_EQ(beeps, 4);
  // A PI that is none holds the operator fast, and nothing is sent.
  static_cast<void>(coder->Arrived());
  auto& box = dynamic_cast<QLineEdit&>(hand.Control(kStation, "PiText"));
  QTest::mouseClick(&box, Qt::LeftButton);
  box.selectAll();
  QTest::keyClicks(&box, "12");
  beeps = 0;
  for (const char* other : {"SendPiCommand", "VScroll3"}) hand.Click(kStation, other);
  EXPECT_EQ(beeps, 2);
  EXPECT_EQ(Focus(), "PiText");
  EXPECT_EQ(box.selectedText(), "12");
  EXPECT_EQ(coder->Arrived(), Lines{});
}

TEST_F(WindowsTransferTest, EscEndsAWaitAndNothingElseDoes) {
  // With a modem in the path no ENQ goes out at the start.
  StartWithCoder({"--open", "--silent"}, "[Serial Setup]\nSatellite=Off\nModem=On\n");
  OpenIdentity();
  for (const bool by_key : {true, false}) {
    during_transfer = [&] {
      static_cast<void>(hand.Window(kTransfer));
      EXPECT_EQ(Focus(), "Command1");
      for (const auto key : {Qt::Key_Space, Qt::Key_Return}) Press(key);
      EXPECT_FALSE(EscPressed);  // struck again on the button that began it
      const int filled = Filled();
      EXPECT_TRUE(QTest::qWaitFor([&] { return Filled() > filled; }));
      ExpectNotToClose({kTransfer, kStation, kMain});
      ClickBeneath(kStation, "SendEccCommand");
      static_cast<void>(hand.Window(kTransfer));
      if (by_key) {
        Press(Qt::Key_Escape);
      } else {
        hand.Click(kTransfer, "Command1");
      }
    };
    hand.Click(kStation, "SendPiCommand");
    ExpectAborted();
  }
  EXPECT_EQ(coder->Arrived(), (Lines{kSentPi, kSentPi}));
}

TEST_F(WindowsTransferTest, AFaultOfTheLineIsSaidOnceAndEndsTheTransfer) {
  const QString next = QString::number(kAnswersOfStart + 1);
  const std::tuple<QStringList, const char*, Lines> cases[] = {
      {{}, "SendPiCommand", {"PI: [RDS] before send address  "}},
      {{"--open", "--garble", next}, "SendPiCommand", {"PI:   [ TX ] not acknowledge   "}},
      {{"--open", "--garble", next}, "ReadPiCommand", {"PI: [ RX ] checksum was wrong  "}},
      {{"--open", "--late", "30", "--pace"}, "ReadPiCommand", {}}};
  // The box stands over everything, and its own ESC is no abort of the next transfer.
  during_box = [] { ExpectNotToClose({kTransfer, kStation, kMain}); };
  for (const auto& [options, button, said] : cases) {
    StartWithCoder(options);
    OpenIdentity();
    hand.Click(kStation, button);
    EXPECT_FALSE(EscPressed);
    EXPECT_EQ(Boxes(), said) << options.join(' ').toStdString();
    EXPECT_EQ(OnScreen(kTransfer), nullptr);
    EXPECT_TRUE(Usable(kStation, button));
  }
}

TEST_F(WindowsTransferTest, ALineThatIsPulledOutIsFoundAgain) {
  StartWithCoder(
      {"--open", "--unplug-after", QString::number(kAnswersOfStart + 1), "--replug-after", "0"});
  OpenIdentity();
  during_transfer = [&] {
    coder->WaitForLine("unplugged");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Filled() > 2; }));
    Press(Qt::Key_Escape);
  };
  hand.Click(kStation, "SendPiCommand");
  ExpectAborted();
  EXPECT_EQ(Boxes(), Lines{});
  hand.Click(kStation, "ReadPiCommand");
  EXPECT_EQ(Boxes(), Lines{"PI: [ TX ] serial unconnected  "});
  EXPECT_EQ(hand.Shown(kStation, "PiText"), "5000");
  hand.Close(kStation);

  coder->WaitForLine("ready ");
  hand.Click(kMain, "OpenButton");
  OpenIdentity();
  hand.Click(kStation, "SendPiCommand");
  EXPECT_EQ(coder->Arrived(), (Lines{"ENQ", kSentPi}));
}

TEST_F(WindowsTransferTest, EscCutsABurstAfterTheFrameAtHand) {
  const OwnLine line;
  Plug(line.Path());
  const int line_end = open(line.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_GE(line_end, 0);
  Start("[Serial Setup]\nSatellite=On\nBurst=10\n");
  EXPECT_EQ(line.Receive(), Bytes{kEnq});
  OpenIdentity();
  EXPECT_FALSE(hand.Window(kStation).findChild<QWidget*>("ReadPiCommand")->isVisible());
  hand.Click(kStation, "SendPiBurstCommand");
  EXPECT_EQ(Boxes(), Lines{"Before send Address"});
  EXPECT_EQ(line.Receive(), Bytes{});
  AddressSent = true;
  // A line that is slow to take the first frame: it stands still until ESC has been pressed.
  ASSERT_EQ(tcflow(line_end, TCOOFF), 0);
  during_transfer = [&] {
    static_cast<void>(hand.Window(kTransfer));
    Press(Qt::Key_Escape);
    EXPECT_EQ(line.Receive(), Bytes{});
    ASSERT_EQ(tcflow(line_end, TCOON), 0);
  };
  hand.Click(kStation, "SendPiBurstCommand");
  ExpectAborted();
  EXPECT_EQ(line.Receive(), (Bytes{0x02, 0x01, 0x00, '5', '0', '0', '0', 0x03, 0x05}));
  close(line_end);
}

}  // namespace
}  // namespace corvalis::test
