#pragma once

#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/combo_box.h"
#include "screen/control.h"
#include "screen/window.h"

namespace corvalis {

/// The on-air screen: traffic announcement, programme type, music or speech. A press changes the
/// value and sends it at once. The screen lives on once created and is then only loaded and closed.
class TaPtyMsForm {
 public:
  /// `main_menu` is disabled while this screen is open, and gets the focus back.
  explicit TaPtyMsForm(Window& main_menu);

  /// Opens the screen.
  void Load();

  Window window{this, "TaPtyMsForm"};
  Label TaLabel{window, "TaLabel"};
  Label PtyLabel{window, "PtyLabel"};
  Label MsLabel{window, "MsLabel"};
  ComboBox Combo1{window, "Combo1"};    ///< the programme type; its line is the code
  Button Command1{window, "Command1"};  ///< send PTY
  Button Command2{window, "Command2"};  ///< toggle TA and send it
  Button Command6{window, "Command6"};  ///< toggle music and speech and send it
  Button Command8{window, "Command8"};  ///< read all three
  CheckBox Check1{window, "Check1"};    ///< indicator: music
  CheckBox Check2{window, "Check2"};    ///< indicator: speech
  CheckBox Check3{window, "Check3"};    ///< indicator: TA on
  CheckBox Check4{window, "Check4"};    ///< indicator: TA off

 private:
  void InitCaptions();
  void StorePty();
  void SendPtyLive();
  void ToggleTa();
  void ToggleMs();
  void ReadAll();

  void ShowPty();
  void ShowTa();
  void ShowMs();

  Window& main_menu_;
  bool pty_pending_ = false;  // the list has the focus and its line has not been stored
};

}  // namespace corvalis
