#include "desktop/radio/show_radio.h"

#include <QApplication>
#include <QIcon>
#include <iostream>

#include "config/words.h"
#include "desktop/radio/radio_window.h"
#include "desktop/views/guide.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/look/toolkit_words.h"
#include "radio/language.h"
#include "radio/program.h"

namespace corvalis::desktop {

int ShowRadio(const radio::Options& options, int& argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("corvalis-radio"));
  QGuiApplication::setDesktopFileName(QStringLiteral("corvalis-radio"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("corvalis")));
  ApplyStyle(application);
  // Of the file that the program is started with; one that is opened later changes no captions.
  if (!options.compare.empty()) radio::TakeLanguage(options.compare);
  ToolkitWords toolkit_words;
  QApplication::installTranslator(&toolkit_words);
  const Guide guide([] { return QString::fromStdString(LanguageCode()); });
  RadioWindow window;
  for (const std::string& wrong :
       {options.compare.empty() ? std::string() : window.OpenStation(options.compare),
        options.source.empty() ? std::string() : window.OpenSource(options.source)}) {
    if (wrong.empty()) continue;
    std::cerr << "corvalis-radio: " << wrong << "\n";
    return radio::kBadUse;
  }
  window.show();
  return QApplication::exec();
}

}  // namespace corvalis::desktop
