// The tour: `corvalis-tour FOLDER CODER-LOG CODER-PID` drives the program and prints what agrees.
// `corvalis-tour --start` only starts it, ends when the main menu has been painted and can be used,
// and prints nothing: for measuring the start.
// `corvalis-tour --radio FOLDER STATION SOURCE` takes pictures of the radio.

#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "desktop/program.h"
#include "desktop/tour/radio_pictures.h"
#include "desktop/tour/tour.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  const bool start_only = words.size() == 2 && words[1] == QStringLiteral("--start");
  if (words.size() == 5 && words[1] == QStringLiteral("--radio")) {
    return corvalis::desktop::TakeRadioPictures(words[2], words[3], words[4]);
  }
  if (!start_only && words.size() != 4) {
    std::fputs(
        "usage: corvalis-tour FOLDER CODER-LOG CODER-PID | --start | --radio FOLDER STATION "
        "SOURCE\n",
        stderr);
    return 2;
  }
  corvalis::desktop::Program program;
  program.Start();
  QApplication::processEvents();
  if (start_only) return 0;
  int result = 1;
  QTimer::singleShot(0, [&] {
    result = corvalis::desktop::Tour(words[1], words[2], words[3].toInt()).Run();
    QApplication::exit();  // whatever window still stands
  });
  QApplication::exec();
  return result;
}
