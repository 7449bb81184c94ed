#include <QApplication>

#include "desktop/program.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("corvalis"));
  QApplication::setApplicationVersion(QStringLiteral(CORVALIS_VERSION));
  corvalis::desktop::Program program;
  program.Start();
  return QApplication::exec();
}
