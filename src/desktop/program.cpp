#include "desktop/program.h"

#include <pwd.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include "desktop/text.h"
#include "desktop/views/views.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

namespace {

// Started without a login (by a service, by sudo), the program may not be told the home folder; the
// root of the file system, which would be taken instead, is no place for its files.
void KnowHomeFolder() {
  if (!qEnvironmentVariableIsEmpty("HOME")) return;
  if (const passwd* user = getpwuid(getuid())) qputenv("HOME", user->pw_dir);
}

// A folder of the program's own under the one that `variable` names, else under `otherwise` in the
// home folder. It is made if it is missing; where that fails, the home folder serves.
std::string OwnFolder(const char* variable, const QString& otherwise) {
  QString base = qEnvironmentVariable(variable);
  if (base.isEmpty() || QDir::isRelativePath(base)) base = QDir::homePath() + otherwise;
  const QString folder = base + QStringLiteral("/corvalis");
  return ToFileName(QDir().mkpath(folder) ? folder : QDir::homePath());
}

}  // namespace

Program::Program() {
  KnowHomeFolder();
  ApplyStyle(*qApp);
  QApplication::setQuitOnLastWindowClosed(false);
  platform_.clock = &time_;
  platform_.pump = &time_;
  platform_.dialogs = &dialogs_;
  platform_.profiles = &profiles_;
  platform_.port = &port_;
  platform_.program_folder = OwnFolder("XDG_DATA_HOME", QStringLiteral("/.local/share"));
  platform_.settings_folder = OwnFolder("XDG_CONFIG_HOME", QStringLiteral("/.config"));
  InstallPlatform(&platform_);
  RegisterViews(host_);
  dialogs_.HelpAsked = [this](const QMessageBox& box) { guide_.OpenFor(box); };
}

Program::~Program() {
  menu_.reset();
  InstallPlatform(nullptr);
}

void Program::Start() {
  menu_ = std::make_unique<MainForm>();
  menu_->Ended = [] { QApplication::exit(); };  // quit() would ask the windows first
  menu_->Load();
}

}  // namespace corvalis::desktop
