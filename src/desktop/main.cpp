#include <QApplication>
#include <QIcon>

#include "desktop/program.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("corvalis"));
  QApplication::setApplicationVersion(QStringLiteral(CORVALIS_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("corvalis"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("corvalis")));
  corvalis::desktop::Program program;
  program.Start();
  return QApplication::exec();
}
