#include "desktop/tour/tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTabBar>
#include <QTextStream>
#include <QTimer>
#include <filesystem>

#include "desktop/widgets/windows/front_window.h"
#include "platform/platform.h"

namespace corvalis::desktop {

namespace {

const QString kMain = QStringLiteral("MainForm");

constexpr int kPatienceMs = 1000;  // for what was sent on a line that does not answer
constexpr qsizetype kLongRun = 4;

QString Text(const char* text) { return QString::fromLatin1(text); }

// What an arrived line is about, without its place in a list and what it says.
QString Kind(const QString& line) {
  static const QRegularExpression place(QStringLiteral(" \\d+ (<-|read ->).*"));
  return QString(line).replace(place, QStringLiteral(" \\1"));
}

}  // namespace

Tour::Tour(const QString& folder, const QString& coder_log, int coder_pid)
    : hand_(folder), coder_(coder_log, coder_pid), window_(kMain) {}

int Tour::Run() {
  // A box would hold the tour up: it is noted and answered.
  QTimer boxes;
  QObject::connect(&boxes, &QTimer::timeout, [this] {
    QMessageBox* box = StandingBox();
    if (box == nullptr) return;
    boxes_ << box->text();
    hand_.Picture(*box, QStringLiteral("box"));
    box->accept();
  });
  boxes.start(50);
  // The busy windows are there for moments only.
  QTimer busy;
  QObject::connect(&busy, &QTimer::timeout, [this, &busy] {
    const bool transfer =
        hand_.PictureOnce(QStringLiteral("SerialCommunicationForm"), QStringLiteral("transfer"));
    const bool wait = hand_.PictureOnce(QStringLiteral("WaitForm"), QStringLiteral("wait"));
    if (transfer && wait) busy.stop();
  });
  busy.start(0);
  try {
    static_cast<void>(coder_.Arrived());
    hand_.Picture(kMain, QStringLiteral("main"));
    for (const Step& step : Steps()) {
      (this->*step.act)(step);
      TellBoxes();
    }
  } catch (const std::exception& error) {
    TellBoxes();
    Say(QString::fromStdString(error.what()));
    ++disagreements_;
  }
  Say(disagreements_ == 0 ? QStringLiteral("\nEverything agrees.")
                          : QStringLiteral("\n%1 disagreements.").arg(disagreements_));
  return disagreements_ == 0 ? 0 : 1;
}

void Tour::Title(const Step& step) { Say(u'\n' + Text(step.on)); }

void Tour::Enter(const Step& step) {
  hand_.Click(kMain, Text(step.on));
  window_ = Text(step.with);
  Arrived();
}

void Tour::Leave(const Step& /*step*/) {
  hand_.Close(window_);
  window_ = kMain;
  Arrived();
}

void Tour::Tab(const Step& step) { hand_.TurnToTab(window_, Text(step.on)); }

void Tour::Press(const Step& step) {
  hand_.Click(window_, Text(step.on));
  static_cast<void>(coder_.Memory());  // what was sent before it has arrived
  Arrived();
}

void Tour::Choose(const Step& step) { hand_.Choose(window_, Text(step.on), Text(step.with)); }

void Tour::Type(const Step& step) {
  if (!Text(step.on).contains(u' ')) {
    hand_.Type(window_, Text(step.on), Text(step.with));
    return;
  }
  GoTo(step);
  hand_.Strike(Text(step.with));
}

void Tour::GoTo(const Step& step) {
  const QStringList cell = Text(step.on).split(u' ');
  hand_.GoToCell(window_, cell[0], cell[1].toInt(), cell[2].toInt());
}

void Tour::Up(const Step& step) { hand_.StepUp(window_, Text(step.on)); }

void Tour::Down(const Step& step) { hand_.StepDown(window_, Text(step.on)); }

void Tour::Send(const Step& step) {
  Press(step);
  ExpectHeld(Text(step.with), Text(step.gives));
}

void Tour::Read(const Step& step) {
  Press(step);
  Expect(QStringLiteral("read back"), Shown(Text(step.with)), Text(step.gives));
}

void Tour::Shows(const Step& step) {
  Expect(Text(step.on) + QStringLiteral(" shows"), Shown(Text(step.on)), Text(step.with));
}

void Tour::Refused(const Step& step) {
  hand_.Click(window_, Text(step.on));
  static_cast<void>(coder_.Memory());  // what was sent before it has arrived
  Expect(QStringLiteral("a box"), boxes_.join(u", "), Text(step.with));
  boxes_.clear();
  Expect(QStringLiteral("arrived"), Arrived().join(u", "), {});
}

void Tour::Burst(const Step& step) {
  hand_.Click(window_, Text(step.on));
  const qsizetype times = Text(step.gives).toInt();
  QStringList lines = Arrived();
  const QDeadlineTimer patience(kPatienceMs);
  while (lines.size() < times && !patience.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    lines += Arrived();
  }
  Expect(QStringLiteral("times that it arrived"), QString::number(lines.count(Text(step.with))),
         Text(step.gives));
}

void Tour::Picture(const Step& step) { hand_.Picture(window_, Text(step.on)); }

void Tour::EveryPage(const Step& step) {
  Enter(step);
  const auto* tabs = hand_.Window(window_).findChild<QTabBar*>();
  for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
    if (tabs != nullptr && !(tabs->isTabVisible(tab) && tabs->isTabEnabled(tab))) continue;
    if (tabs != nullptr) hand_.TurnToTab(window_, tab);
    hand_.Picture(window_, window_ + u'-' + QString::number(tab) + Text(step.gives));
  }
  Leave(step);
}

// The machine's time, as the screen shows it and the Coder holds it.
void Tour::SendClock(const Step& step) {
  Press(step);
  const QString held = coder_.Memory().value(QStringLiteral("CT 00"));
  Expect(QStringLiteral("the Coder's time"), held.mid(7, 2) + u':' + held.mid(9, 2),
         Shown(QStringLiteral("Text1")));
  Expect(QStringLiteral("the Coder's offset"), held.mid(15, 2), Text(step.with));
}

// The Coder's line is put from COM 1 to COM 2, and nothing stays behind.
void Tour::MoveLine(const Step& /*step*/) {
  const std::filesystem::path settings = Machine().settings_folder;
  std::filesystem::rename(settings / "com1", settings / "com2");
  std::filesystem::create_symlink("/dev/corvalis-unplugged", settings / "com1");
}

void Tour::Say(const QString& text) const { QTextStream(stdout) << text << Qt::endl; }

QStringList Tour::Arrived() {
  QStringList lines = coder_.Arrived();
  for (qsizetype from = 0; from < lines.size();) {
    qsizetype to = from + 1;
    while (to < lines.size() && Kind(lines[to]) == Kind(lines[from])) ++to;
    const bool long_run = to - from > kLongRun;
    for (qsizetype i = from; i < to; ++i) {
      if (!long_run || i == from || i == to - 1) Say(QStringLiteral("  sent:  ") + lines[i]);
      if (long_run && i == from) Say(QStringLiteral("         and %1 more").arg(to - from - 2));
    }
    from = to;
  }
  return lines;
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

QString Tour::Shown(const QString& control) const {
  if (control.contains(QStringLiteral("Check"))) {
    const auto* box = qobject_cast<QAbstractButton*>(&hand_.Control(window_, control));
    return box != nullptr && box->isChecked() ? QStringLiteral("on") : QStringLiteral("off");
  }
  const QStringList cell = control.split(u' ');
  return cell.size() == 1 ? hand_.Shown(window_, control)
                          : hand_.ShownCell(window_, cell[0], cell[1].toInt(), cell[2].toInt());
}

void Tour::TellBoxes() {
  for (const QString& box : boxes_) Expect(QStringLiteral("a box"), box, QStringLiteral("none"));
  boxes_.clear();
}

}  // namespace corvalis::desktop
