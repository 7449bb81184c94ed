#pragma once

#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/window.h"

namespace corvalis {

/// The traffic programme flag and the four decoder identification flags. Each is a pair of boxes of
/// which one is always checked.
class TpDiTab {
 public:
  explicit TpDiTab(Window& owner);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows and hides the buttons as the link wants it, and shows the record.
  void Open();

  Window& window;                       ///< the screen's
  CheckBox Check1{window, "Check1"};    ///< traffic programme
  CheckBox Check10{window, "Check10"};  ///< not
  CheckBox Check2{window, "Check2"};    ///< mono
  CheckBox Check3{window, "Check3"};    ///< stereo
  CheckBox Check4{window, "Check4"};    ///< artificial head
  CheckBox Check5{window, "Check5"};    ///< not
  CheckBox Check6{window, "Check6"};    ///< compressed
  CheckBox Check7{window, "Check7"};    ///< not
  CheckBox Check8{window, "Check8"};    ///< static PTY
  CheckBox Check9{window, "Check9"};    ///< dynamic PTY
  Button Command3{window, "Command3"};  ///< read
  Button Command4{window, "Command4"};  ///< send
  Button Command5{window, "Command5"};  ///< burst

 private:
  void Refresh();

  void Read();
  static void Send();
  static void SendBurst();
};

}  // namespace corvalis
