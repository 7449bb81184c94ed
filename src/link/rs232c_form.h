#pragma once

#include <array>
#include <functional>
#include <string>

#include "busy/brand_marks.h"
#include "link/autosetting.h"
#include "platform/serial_port.h"
#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/list_box.h"
#include "screen/text_box.h"
#include "screen/timer.h"
#include "screen/window.h"

namespace corvalis {

/// The setup screen: how the Coder is reached, by which port, through which modem; and the language
/// of the program. What is set here goes into the station record. The port is opened anew when the
/// screen closes.
class RS232CForm {
 public:
  /// What the screen needs of the main menu.
  struct MainMenu {
    Window& window;  ///< disabled while this screen is open
    SerialPort& port;
    std::function<void()> init_main;      ///< shows the main menu in the present language
    std::function<void()> reload_limits;  ///< what asks the Coder for its limits loads again
  };

  explicit RS232CForm(MainMenu main_menu);

  /// Opens the screen on the station record.
  void Load();

  Window window{this, "RS232CForm"};
  BrandMarks marks{window};
  Label RdsOptionLabel{window, "RdsOptionLabel"};
  Label BurstLabel{window, "BurstLabel"};
  Label SerialLabel{window, "SerialLabel"};
  Label BaudrateLabel{window, "BaudrateLabel"};
  Label ParityLabel{window, "ParityLabel"};
  Label StopBitLabel{window, "StopBitLabel"};
  Label LanguageLabel{window, "LanguageLabel"};
  ListBox RdsOptionCombo{window, "RdsOptionCombo"};
  ListBox Combo1{window, "Combo1"};
  ListBox SerialCombo{window, "SerialCombo"};
  ListBox BaudrateCombo{window, "BaudrateCombo"};
  ListBox ParityCombo{window, "ParityCombo"};
  ListBox StopBitCombo{window, "StopBitCombo"};
  ListBox LanguageCombo{window, "LanguageCombo"};
  Button Command31{window, "Command31"};  ///< AUTOSETTING
  CheckBox Check1{window, "Check1"};      ///< Tone
  CheckBox Check2{window, "Check2"};      ///< Pulse
  TextBox Text2{window, "Text2"};         ///< the telephone number
  Button Command2{window, "Command2"};    ///< Hook
  Button Command1{window, "Command1"};    ///< Hang up
  TextBox Text1{window, "Text1"};         ///< the modem's dialogue
  Timer Timer1{window, "Timer1", kDialogueTickMs};

 private:
  static constexpr int kDialogueTickMs = 1000;

  /// A list whose choice is taken when it is left.
  struct PendingList {
    ListBox& list;
    std::function<void()> take;
    bool has_focus = false;
  };

  void FillLists();
  void InitCaptions();
  void UpdateEnabling();
  void ShowPortSettings();
  void ShowStopBit();
  void ShowTone();
  void ShowDialogue(const std::string& text);

  void TakeMode();
  void TakeBurst();
  void TakeBaudrate();
  void TakeParity();
  void TakeCommPort();
  static void Leave(PendingList& pending);

  void AutoSetting();
  void ShowAttempt(const PortChoice& choice);
  void SwitchLanguage();
  void Hook();
  void HangUp();
  void OfferDialling(bool offered);
  void ReadDialogue();
  void Unload();

  MainMenu main_menu_;
  std::array<PendingList, 4> pending_;  // in the order in which the closing takes them
};

}  // namespace corvalis
