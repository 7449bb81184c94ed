#pragma once

#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/window.h"

namespace corvalis {

/// The traffic programme flag and the four decoder identification flags. Each is a pair of boxes of
/// which one is always checked.
class TpDiTab {
 public:
  explicit TpDiTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows and hides the buttons as the link wants it, and shows the record.
  void Open();

  CheckBox Check1, Check10;             ///< traffic programme, or not
  CheckBox Check2, Check3;              ///< mono; stereo
  CheckBox Check4, Check5;              ///< artificial head, or not
  CheckBox Check6, Check7;              ///< compressed, or not
  CheckBox Check8, Check9;              ///< static PTY; dynamic PTY
  Button Command3, Command4, Command5;  ///< read; send; burst

 private:
  void Refresh();

  void Read();
  static void Send();
  static void SendBurst();

  Window& window_;
};

}  // namespace corvalis
