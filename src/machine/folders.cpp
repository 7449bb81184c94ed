#include "machine/folders.h"

#include <pwd.h>
#include <unistd.h>

#include <QDir>

#include "machine/qt_text.h"

namespace corvalis::machine {

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
  KnowHomeFolder();
  QString base = qEnvironmentVariable(variable);
  if (base.isEmpty() || QDir::isRelativePath(base)) base = QDir::homePath() + otherwise;
  const QString folder = base + QStringLiteral("/corvalis");
  return ToFileName(QDir().mkpath(folder) ? folder : QDir::homePath());
}

}  // namespace

std::string ProgramFolder() { return OwnFolder("XDG_DATA_HOME", QStringLiteral("/.local/share")); }

std::string SettingsFolder() { return OwnFolder("XDG_CONFIG_HOME", QStringLiteral("/.config")); }

}  // namespace corvalis::machine
