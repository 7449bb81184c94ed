#pragma once

#include <memory>

#include "app/main_form.h"
#include "config/words.h"
#include "desktop/qt_dialogs.h"
#include "desktop/text.h"
#include "desktop/views/guide.h"
#include "desktop/widgets/look/toolkit_words.h"
#include "desktop/widgets/windows/screen_host.h"
#include "machine/qt_serial_port.h"
#include "machine/qt_time.h"
#include "platform/platform.h"

namespace corvalis::desktop {

/// The program on this machine: its folders, its services and its windows. There is one, and a
/// QApplication must be there before it.
class Program {
 public:
  Program();
  ~Program();

  /// Starts: returns when the main menu can be used. Closing the menu ends the application.
  void Start();
  /// The main menu; not before `Start`.
  [[nodiscard]] MainForm& Menu() const { return *menu_; }

 private:
  ToolkitWords toolkit_words_;
  machine::QtTime time_;
  QtDialogs dialogs_;
  machine::QtSerialPort port_;
  ProfileStore profiles_;
  Platform platform_;
  QtScreenHost host_;
  Guide guide_{
      [] { return FromBytes(LanguageCode()); }};  // after the host, so that it sees a key before it
  std::unique_ptr<MainForm> menu_;
};

}  // namespace corvalis::desktop
