#include "desktop/running_program.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "link/serial_management.h"
#include "platform/platform.h"

namespace corvalis::test {

namespace fs = std::filesystem;

namespace {

constexpr int kIdentityPage = 2;

}  // namespace

/// Sees windows come up. What is to be done with one is done once it is there.
class RunningProgram::Watcher : public QObject {
 public:
  explicit Watcher(RunningProgram& test) : test_(test) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::Show) return false;
    if (auto* box = qobject_cast<QMessageBox*>(receiver)) {
      test_.boxes_.push_back(box->text().toStdString());
      QMetaObject::invokeMethod(
          box, [this, box] { Answer(*box); }, Qt::QueuedConnection);
    } else if (receiver->isWidgetType() && receiver->objectName() == kTransfer) {
      QMetaObject::invokeMethod(
          this, [this] { Transfer(); }, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  void Answer(QMessageBox& box) {
    const QPointer<QMessageBox> answered = &box;
    if (test_.during_box) test_.during_box();
    if (!answered) return;
    QTest::keyClick(&box, Qt::Key_Escape);
    if (!box.isVisible()) return;
    ADD_FAILURE() << "The box can't be answered: " << box.text().toStdString();
    box.accept();
  }

  // Nothing may be thrown into the toolkit.
  void Transfer() try {
    if (const auto work = std::exchange(test_.during_transfer, nullptr)) work();
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
    EscPressed = true;
  }

  RunningProgram& test_;
};

/// Passes boxes on and counts the beeps, which a machine without a loudspeaker swallows.
class RunningProgram::Ear : public Dialogs {
 public:
  Ear(RunningProgram& test, Dialogs& real) : test_(test), real_(real) {}

  void Show(const Box& box) override { real_.Show(box); }
  void Dismiss() override { real_.Dismiss(); }
  void Beep() override { ++test_.beeps; }

 private:
  RunningProgram& test_;
  Dialogs& real_;
};

RunningProgram::RunningProgram() : watcher_(std::make_unique<Watcher>(*this)) {
  fs::create_directories(folder_ + "/config/corvalis");
  fs::create_directories(folder_ + "/data/corvalis");
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_ + "/config"));
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder_ + "/data"));
  // Lest the click on a list that has just opened counts as the rest of the opening one.
  QApplication::setDoubleClickInterval(0);
  LinkError = kLinkOk;
  LinkOpen = AddressSent = EscPressed = AutoSettingActive = false;
}

RunningProgram::~RunningProgram() { End(); }

void RunningProgram::End() {
  program.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  coder.reset();
}

std::string RunningProgram::LinkOf(int number) const {
  return folder_ + "/config/corvalis/com" + std::to_string(number);
}

void RunningProgram::PlugCoder(const QStringList& options, int number) {
  coder = std::make_unique<CoderProcess>(
      QStringList{"--print", "--dump", "--link", QString::fromStdString(LinkOf(number))} + options);
}

void RunningProgram::Plug(const std::string& device) const {
  fs::create_symlink(device, LinkOf(1));
}

void RunningProgram::Start(const std::string& default_file) {
  WriteFile("corvalis.rds", default_file);
  program = std::make_unique<desktop::Program>();
  ear_ = std::make_unique<Ear>(*this, *Machine().dialogs);
  Machine().dialogs = ear_.get();
  program->Start();
}

void RunningProgram::StartWithCoder(const QStringList& options, const std::string& default_file) {
  End();
  PlugCoder(options);
  Start(default_file);
}

void RunningProgram::WriteFile(const std::string& name, const std::string& text) const {
  std::ofstream(folder_ + "/data/corvalis/" + name, std::ios::binary) << text;
}

std::string RunningProgram::ReadFile(const std::string& name) const {
  std::ifstream file(folder_ + "/data/corvalis/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void RunningProgram::OpenIdentity() const {
  hand.Click(kMain, "CtTpDiPiButton");
  hand.TurnToTab(kStation, kIdentityPage);
}

QWidget* RunningProgram::OnScreen(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == name && window->isVisible()) return window;
  }
  return nullptr;
}

void RunningProgram::PressCloseBox(const QString& name) {
  QWidget* window = OnScreen(name);
  ASSERT_NE(window, nullptr) << name.toStdString();
  window->close();
  QCoreApplication::processEvents();
}

void RunningProgram::ClickBeneath(const QString& window, const QString& control) {
  QWidget* shown = OnScreen(window);
  ASSERT_NE(shown, nullptr) << window.toStdString();
  QTest::mouseClick(shown->findChild<QWidget*>(control), Qt::LeftButton);
}

void RunningProgram::ExpectNotToClose(const QStringList& windows) {
  for (const QString& window : windows) {
    PressCloseBox(window);
    EXPECT_NE(OnScreen(window), nullptr) << window.toStdString();
  }
}

void RunningProgram::InHaste(const QStringList& windows, const std::function<void()>& work) {
  int times = 0;
  QTimer hand;
  QObject::connect(&hand, &QTimer::timeout, &hand, [&] {
    if (OnScreen(kWait) == nullptr) return;
    ++times;
    ExpectNotToClose(windows + QStringList{kWait});
  });
  hand.start(1);
  work();
  EXPECT_GT(times, 0);
  EXPECT_EQ(OnScreen(kWait), nullptr);
}

void RunningProgram::Press(Qt::Key key) {
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr);
  QTest::keyClick(focus, key);
}

void RunningProgram::StrikeMnemonic(const QString& text) {
  const QKeySequence key = QKeySequence::mnemonic(text);
  ASSERT_FALSE(key.isEmpty()) << text.toStdString();
  QTest::keyClick(QApplication::focusWidget(), key[0].key(), Qt::AltModifier);
}

QString RunningProgram::Focus() {
  const QWidget* focus = QApplication::focusWidget();
  return focus == nullptr ? QString() : focus->objectName();
}

bool RunningProgram::Usable(const QString& window, const QString& control) const {
  return hand.Control(window, control).isEnabled();
}

std::string RunningProgram::Held(const std::string& item) {
  for (const std::string& line : coder->Memory()) {
    if (!line.starts_with(item + ": ")) continue;
    const std::size_t quote = line.find("  \"");
    return line.substr(quote + 3, line.size() - quote - 4);
  }
  return {};
}

}  // namespace corvalis::test
