#include "desktop/tour/tour.h"

#include <QApplication>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>
#include <filesystem>

#include "config/config_data.h"
#include "config/conversions.h"
#include "desktop/text.h"
#include "platform/platform.h"

namespace corvalis::desktop {

namespace {

const QString kMain = QStringLiteral("MainForm");
const QString kStation = QStringLiteral("CtTpDiPiForm");
const QString kOnAir = QStringLiteral("TaPtyMsForm");
const QString kGroups = QStringLiteral("EditGroupsForm");
const QString kSetup = QStringLiteral("RS232CForm");
const QString kTransfer = QStringLiteral("SerialCommunicationForm");
const QString kWait = QStringLiteral("WaitForm");

enum StationTab { kCt, kTpDi, kPiEccLic };

// The Coder's line is put from COM 1 to COM 2, and nothing stays behind.
void MoveLine() {
  const std::filesystem::path settings = Machine().settings_folder;
  std::filesystem::rename(settings / "com1", settings / "com2");
  std::filesystem::create_symlink("/dev/corvalis-unplugged", settings / "com1");
}

}  // namespace

Tour::Tour(const QString& folder, const QString& coder_log, int coder_pid)
    : hand_(folder), coder_(coder_log, coder_pid) {}

int Tour::Run() {
  // A box would hold the tour up: it is taken for what it is, a failure, and answered.
  QTimer boxes;
  QObject::connect(&boxes, &QTimer::timeout, [this] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    Expect(QStringLiteral("a box"), box->text(), QStringLiteral("none"));
    box->accept();
  });
  boxes.start(100);
  // The busy windows are there for moments only.
  QTimer busy;
  QObject::connect(&busy, &QTimer::timeout, [this, &busy] {
    const bool transfer = hand_.PictureOnce(kTransfer, QStringLiteral("transfer"));
    const bool wait = hand_.PictureOnce(kWait, QStringLiteral("wait"));
    if (transfer && wait) busy.stop();
  });
  busy.start(0);
  try {
    static_cast<void>(coder_.Arrived());
    hand_.Picture(kMain, QStringLiteral("main"));
    OpenStation();
    Identity();
    TpAndDi();
    ClockTime();
    OnAir();
    Groups();
    Save();
    Setup();
    Language();
  } catch (const std::exception& error) {
    Say(QString::fromStdString(error.what()));
    ++disagreements_;
  }
  Say(disagreements_ == 0 ? QStringLiteral("\nEverything agrees.")
                          : QStringLiteral("\n%1 disagreements.").arg(disagreements_));
  return disagreements_ == 0 ? 0 : 1;
}

void Tour::Say(const QString& text) const { QTextStream(stdout) << text << Qt::endl; }

void Tour::Arrived() {
  for (const QString& line : coder_.Arrived()) Say(QStringLiteral("  sent:  ") + line);
}

void Tour::Expect(const QString& what, const QString& is, const QString& should_be) {
  const bool agrees = is == should_be;
  if (!agrees) ++disagreements_;
  Say(QStringLiteral("  %1: \"%2\"%3")
          .arg(what, is,
               agrees ? QStringLiteral(", agrees")
                      : QStringLiteral(", DISAGREES with \"%1\"").arg(should_be)));
}

void Tour::ExpectHeld(const QString& item, const QString& should_be) {
  Expect(QStringLiteral("the Coder holds ") + item, coder_.Memory().value(item), should_be);
}

void Tour::OpenStation() {
  Say(QStringLiteral("Open station.rds"));
  hand_.Choose(kMain, QStringLiteral("File1"), QStringLiteral("station.rds"));
  hand_.Click(kMain, QStringLiteral("OpenButton"));
  Arrived();
  Expect(QStringLiteral("file name"), hand_.Shown(kMain, QStringLiteral("Text105")),
         QStringLiteral("station.rds"));
}

void Tour::Identity() {
  Say(QStringLiteral("\nPI, ECC, LIC"));
  hand_.Click(kMain, QStringLiteral("CtTpDiPiButton"));
  hand_.TurnToTab(kStation, kPiEccLic);
  hand_.Choose(kStation, QStringLiteral("CountryCombo"), QStringLiteral("Switzerland"));
  hand_.Choose(kStation, QStringLiteral("CoverageCombo"), QStringLiteral("Regional 1"));
  hand_.StepUp(kStation, QStringLiteral("VScroll3"));
  hand_.Choose(kStation, QStringLiteral("LicCombo"), QStringLiteral("German"));
  const QString pi = hand_.Shown(kStation, QStringLiteral("PiText"));
  for (const char* send : {"SendPiCommand", "SendEccCommand", "SendLicCommand"}) {
    hand_.Click(kStation, QString::fromLatin1(send));
  }
  Arrived();
  ExpectHeld(QStringLiteral("PI 00"), pi);
  ExpectHeld(QStringLiteral("ECC 00"), hand_.Shown(kStation, QStringLiteral("EccText")));
  ExpectHeld(QStringLiteral("LIC 00"), QStringLiteral("08"));
  // Another value on the screen, and the Coder's own comes back.
  hand_.Type(kStation, QStringLiteral("PiText"), QStringLiteral("4abc"));
  hand_.Click(kStation, QStringLiteral("ReadPiCommand"));
  Arrived();
  Expect(QStringLiteral("read back"), hand_.Shown(kStation, QStringLiteral("PiText")), pi);
  hand_.Picture(kStation, QStringLiteral("pi-ecc-lic"));
}

void Tour::TpAndDi() {
  Say(QStringLiteral("\nTP and DI"));
  hand_.TurnToTab(kStation, kTpDi);
  hand_.Click(kStation, QStringLiteral("Check1"));  // TP on
  hand_.Click(kStation, QStringLiteral("Check9"));  // dynamic PTY
  hand_.Click(kStation, QStringLiteral("Command4"));
  Arrived();
  ExpectHeld(QStringLiteral("TP 00"), configData->Tp() ? QStringLiteral("1") : QStringLiteral("0"));
  ExpectHeld(QStringLiteral("DI 00"), QStringLiteral("9"));
  hand_.Click(kStation, QStringLiteral("Check8"));
  hand_.Click(kStation, QStringLiteral("Command3"));
  Arrived();
  Expect(QStringLiteral("read back, static PTY"), QString::number(configData->StaticPty()),
         QStringLiteral("0"));
  hand_.Picture(kStation, QStringLiteral("tp-di"));
}

void Tour::ClockTime() {
  Say(QStringLiteral("\nClock time"));
  hand_.TurnToTab(kStation, kCt);
  hand_.StepUp(kStation, QStringLiteral("VScroll2"));
  hand_.StepDown(kStation, QStringLiteral("VScroll2"));
  hand_.StepUp(kStation, QStringLiteral("VScroll6"));
  hand_.Click(kStation, QStringLiteral("Command2"));
  Arrived();
  const QString held = coder_.Memory().value(QStringLiteral("CT 00"));
  const QString time = hand_.Shown(kStation, QStringLiteral("Text1"));
  Expect(QStringLiteral("the Coder's time"), held.mid(7, 2) + u':' + held.mid(9, 2), time);
  Expect(QStringLiteral("the Coder's offset"), held.mid(15, 2),
         FromBytes(Digits(configData->CtOffset() + 24, 2)));
  hand_.StepUp(kStation, QStringLiteral("VScroll2"));
  hand_.Click(kStation, QStringLiteral("Command1"));
  Arrived();
  Expect(QStringLiteral("read back"), hand_.Shown(kStation, QStringLiteral("Text1")), time);
  hand_.Picture(kStation, QStringLiteral("ct"));
  hand_.Close(kStation);
}

void Tour::OnAir() {
  Say(QStringLiteral("\nTA, PTY and M/S"));
  hand_.Click(kMain, QStringLiteral("TaPtyMsButton"));
  hand_.Picture(kOnAir, QStringLiteral("ta-pty-ms-ta-off"));
  hand_.Click(kOnAir, QStringLiteral("Command2"));
  hand_.Click(kOnAir, QStringLiteral("Command6"));
  hand_.Choose(kOnAir, QStringLiteral("Combo1"), QStringLiteral("11  Rock Music"));
  hand_.Click(kOnAir, QStringLiteral("Command1"));
  Arrived();
  ExpectHeld(QStringLiteral("TA 00"), configData->Ta() ? QStringLiteral("1") : QStringLiteral("0"));
  ExpectHeld(QStringLiteral("M/S 00"),
             configData->Music() ? QStringLiteral("1") : QStringLiteral("0"));
  ExpectHeld(QStringLiteral("PTY 00"), QStringLiteral("0B"));
  hand_.Choose(kOnAir, QStringLiteral("Combo1"), QStringLiteral("1    News"));
  hand_.Click(kOnAir, QStringLiteral("Command8"));
  Arrived();
  Expect(QStringLiteral("read back"), hand_.Shown(kOnAir, QStringLiteral("Combo1")),
         QStringLiteral("11  Rock Music"));
  hand_.Picture(kOnAir, QStringLiteral("ta-pty-ms-ta-on"));
  hand_.Click(kOnAir, QStringLiteral("Command2"));
  Arrived();
  hand_.Close(kOnAir);
}

void Tour::Groups() {
  Say(QStringLiteral("\nGroup sequence"));
  hand_.Click(kMain, QStringLiteral("EditGroupsButton"));
  hand_.StepUp(kGroups, QStringLiteral("VScroll2(2)"));
  hand_.Click(kGroups, QStringLiteral("Command1"));
  Arrived();
  const QString held = coder_.Memory().value(QStringLiteral("Enable 02"));
  Expect(QStringLiteral("the Coder's repetitions of 2A"),
         QString::number(held.mid(2).toInt(nullptr, 16)),
         QString::number(hand_.Shown(kGroups, QStringLiteral("Text1(2)")).toInt()));
  const QString shown = hand_.Shown(kGroups, QStringLiteral("Text1(2)"));
  hand_.StepUp(kGroups, QStringLiteral("VScroll2(2)"));
  hand_.Click(kGroups, QStringLiteral("Command13"));
  Arrived();
  Expect(QStringLiteral("read back"), hand_.Shown(kGroups, QStringLiteral("Text1(2)")), shown);
  hand_.Picture(kGroups, QStringLiteral("groups"));
  hand_.Close(kGroups);
}

void Tour::Save() {
  Say(QStringLiteral("\nSave"));
  const int country = configData->Country();
  hand_.Type(kMain, QStringLiteral("Text105"), QStringLiteral("tour"));
  hand_.Click(kMain, QStringLiteral("SaveButton"));
  Expect(QStringLiteral("file name"), hand_.Shown(kMain, QStringLiteral("Text105")),
         QStringLiteral("tour.rds"));
  hand_.Click(kMain, QStringLiteral("NewButton"));
  hand_.Choose(kMain, QStringLiteral("File1"), QStringLiteral("tour.rds"));
  hand_.Click(kMain, QStringLiteral("OpenButton"));
  Arrived();
  Expect(QStringLiteral("country after New and Open"), QString::number(configData->Country()),
         QString::number(country));
}

void Tour::Setup() {
  Say(QStringLiteral("\nSetup, and AUTOSETTING with the Coder's line moved from COM 1 to COM 2"));
  MoveLine();
  hand_.Click(kMain, QStringLiteral("RS232CButton"));
  hand_.Picture(kSetup, QStringLiteral("setup"));
  hand_.Click(kSetup, QStringLiteral("Command31"));
  Arrived();
  Expect(QStringLiteral("found on"), hand_.Shown(kSetup, QStringLiteral("SerialCombo")),
         QStringLiteral("COM 2"));
  hand_.Picture(kSetup, QStringLiteral("setup-found"));
}

void Tour::Language() {
  Say(QStringLiteral("\nAnother language"));
  hand_.Choose(kSetup, QStringLiteral("LanguageCombo"), QStringLiteral("Deutsch"));
  hand_.Picture(kSetup, QStringLiteral("setup-deutsch"));
  hand_.Close(kSetup);
  Arrived();
  Expect(QStringLiteral("the main menu"), hand_.Shown(kMain, QStringLiteral("SaveButton")),
         QStringLiteral("SPEICHERN"));
  hand_.Picture(kMain, QStringLiteral("main-deutsch"));
}

}  // namespace corvalis::desktop
