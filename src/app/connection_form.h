#pragma once

#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/option_button.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The Coder ID, and the transfer of a whole configuration: a standing selection of items, read
/// from the Coder, sent to it, or sent in several passes over a one-way link.
class ConnectionForm {
 public:
  /// `main_menu` is disabled while the screen is open.
  explicit ConnectionForm(Window& main_menu);

  void Load();

  Window window{this, "ConnectionForm"};
  Label AddressLabel{window, "AddressLabel"};
  TextBox Text1{window, "Text1"};  ///< the Coder ID
  Button Command4{window, "Command4"};
  Label NewAddressLabel{window, "NewAddressLabel"};
  TextBox Text2{window, "Text2"};  ///< the new Coder ID
  Button Command5{window, "Command5"};

  Label AddressStateLabel{window, "AddressStateLabel"};  ///< whether an address has been sent

  CheckBox PsnCheck{window, "PsnCheck"};
  CheckBox PSNPagesCheck{window, "PSNPagesCheck"};  ///< only shows what the Coder works with
  CheckBox Check3{window, "Check3"};                ///< radio texts
  CheckBox PtynCheck{window, "PtynCheck"};
  CheckBox Check2{window, "Check2"};  ///< alternative frequencies
  OptionButton AFAOption{window, "AFAOption"};
  OptionButton AFBOption{window, "AFBOption"};
  CheckBox Check1{window, "Check1"};  ///< PI
  CheckBox EccCheck{window, "EccCheck"};
  CheckBox LicCheck{window, "LicCheck"};
  CheckBox Check11{window, "Check11"};  ///< TP
  CheckBox Check8{window, "Check8"};    ///< DI
  CheckBox Check5{window, "Check5"};    ///< clock time
  CheckBox Check4{window, "Check4"};    ///< programme items
  CheckBox EonCheck{window, "EonCheck"};
  CheckBox LiCheck{window, "LiCheck"};
  CheckBox Check6{window, "Check6"};  ///< transparent data channels
  CheckBox Check7{window, "Check7"};  ///< in-house pages
  CheckBox TmcCheck{window, "TmcCheck"};

  // How much is selected, and how long it takes.
  Label ReadLoadLabel{window, "ReadLoadLabel"};
  Label SendLoadLabel{window, "SendLoadLabel"};
  Label BurstLoadLabel{window, "BurstLoadLabel"};
  Button Command1{window, "Command1"};    ///< reads
  Button Command11{window, "Command11"};  ///< sends
  Button Command12{window, "Command12"};  ///< sends in a burst

 private:
  void InitCaptions();
  void ShowRecord();
  void ShowAddressState();
  void ShowLoad();

  Window& main_menu_;
  bool opening_ = false;  // what the boxes are set to then is stored nowhere
};

}  // namespace corvalis
