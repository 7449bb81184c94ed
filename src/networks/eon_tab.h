#pragma once

#include <cstdint>

#include "link/list_buttons.h"
#include "networks/eon_data.h"
#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/control_array.h"
#include "screen/list_box.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The lists of other networks, one at a time.
class EonTab {
 public:
  explicit EonTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the current list.
  void Open();
  /// Shows the current list. The list itself stays as it is.
  void RefreshEonTab();

 private:
  Window& window_;

 public:
  Label EonListLabel{window_, "EonListLabel"};
  TextBox EonListText{window_, "EonListText"};
  Spinner EonListScroll{window_, "EonListScroll"};
  CheckBox EonEnableCheck{window_, "EonEnableCheck"};
  Label EonPsnLabel{window_, "EonPsnLabel"};
  TextBox EonPsnText{window_, "EonPsnText"};
  /// The name, for whoever says what radios show of it.
  Label EonPsnRadioLabel{window_, "EonPsnRadioLabel"};
  Label EonPiLabel{window_, "EonPiLabel"};
  TextBox EonPiText{window_, "EonPiText"};
  Label EonPinLabel{window_, "EonPinLabel"};
  TextBox EonPinText{window_, "EonPinText"};
  Label EonPtyLabel{window_, "EonPtyLabel"};
  ListBox EonPtyCombo{window_, "EonPtyCombo"};
  CheckBox EonTpCheck{window_, "EonTpCheck"};
  CheckBox EonTaCheck{window_, "EonTaCheck"};
  Label EonAfALabel{window_, "EonAfALabel"};
  ControlArray<TextBox, kEonAfA> EonAfAText{window_, "EonAfAText"};
  Label EonAfBLabel{window_, "EonAfBLabel"};
  ControlArray<TextBox, kEonAfB> EonAfBText{window_, "EonAfBText"};
  Label EonAfBAmLabel{window_, "EonAfBAmLabel"};
  Button ReadEonCommand{window_, "ReadEonCommand"};
  Button ReadEonAllCommand{window_, "ReadEonAllCommand"};
  Button SendEonCommand{window_, "SendEonCommand"};
  Button SendEonAllCommand{window_, "SendEonAllCommand"};
  Button SendEonBurstCommand{window_, "SendEonBurstCommand"};

 private:
  void SetListRules();
  void SetSwitchRules();
  void SetFrequencyRules();
  void GoTo(std::int32_t list);

  ListButtons buttons_;
  bool refreshing_ = false;
};

}  // namespace corvalis
