#include "desktop/program.h"

#include <QApplication>
#include <QMessageBox>

#include "desktop/views/views.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "machine/folders.h"

namespace corvalis::desktop {

Program::Program() {
  ApplyStyle(*qApp);
  QCoreApplication::installTranslator(&toolkit_words_);
  QApplication::setQuitOnLastWindowClosed(false);
  platform_.clock = &time_;
  platform_.pump = &time_;
  platform_.dialogs = &dialogs_;
  platform_.profiles = &profiles_;
  platform_.port = &port_;
  platform_.program_folder = machine::ProgramFolder();
  platform_.settings_folder = machine::SettingsFolder();
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
  menu_->LanguageRead = LanguageRead;
  menu_->Ended = [] { QApplication::exit(); };  // quit() would ask the windows first
  menu_->Load();
}

}  // namespace corvalis::desktop
