// The road of a transfer through the real windows and the real port, to the Coder and back; and
// what an operator may do meanwhile.

#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

#include "busy/serial_communication_form.h"
#include "busy/transfer_bracket.h"
#include "desktop/running_program.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/front_window.h"
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

TEST_F(WindowsTransferTest, EscIsInReachBesideABox) {
  StartWithCoder({}, std::string(kLocalFile) + "[RDS Setup]\nPresetPsn=On\n");
  hand.Click(kMain, "ConnectionButton");
  during_box = [&] {
    QWidget* transfer = OnScreen(kTransfer);
    EXPECT_FALSE(desktop::StandingBox()->frameGeometry().intersects(transfer->frameGeometry()));
    // Only once a second is the line told to who does not see it.
    const auto* line = transfer->findChild<QLabel*>("ProgressLabel");
    const QString told = line->accessibleName();
    EXPECT_EQ(told.toStdString(), line->text().toStdString());
    StandingTransfer()->ProgressLabel.SetCaption("RT: 2 of 3");
    EXPECT_EQ(line->text(), "RT: 2 of 3");
    EXPECT_EQ(line->accessibleName(), told);
    ClickBeneath(kConnection, "Command4");
    // As it comes from the window system, which knows who is kept out.
    const auto* esc = transfer->findChild<QWidget*>("Command1");
    QTest::mouseClick(transfer->windowHandle(), Qt::LeftButton, {},
                      esc->mapTo(transfer, esc->rect().center()));
    EXPECT_EQ(desktop::StandingBox(), nullptr);
  };
  hand.Click(kConnection, "Command11");
  EXPECT_EQ(Boxes(), Lines{"PSNPage: [RDS] before send address  "});
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_TRUE(Usable(kConnection, "Command11"));
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

}  // namespace
}  // namespace corvalis::test
