#pragma once

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/list_box.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The names of the programme types, one at a time.
class PtynTab {
 public:
  explicit PtynTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the type that was shown last.
  void Open();

 private:
  Window& window_;

 public:
  Label PtyLabel{window_, "PtyLabel"};
  ListBox PtyCombo{window_, "PtyCombo"};
  Label PtynLabel{window_, "PtynLabel"};
  TextBox PtynText{window_, "PtynText"};
  /// The name, for whoever says what radios show of it.
  Label PtynRadioLabel{window_, "PtynRadioLabel"};
  Button ReadPtynCommand{window_, "ReadPtynCommand"};
  Button ReadPtynAllCommand{window_, "ReadPtynAllCommand"};
  Button SendPtynCommand{window_, "SendPtynCommand"};
  Button SendPtynAllCommand{window_, "SendPtynAllCommand"};
  Button SendPtynBurstCommand{window_, "SendPtynBurstCommand"};

 private:
  void FitName();
  void ShowName();

  ListButtons buttons_;
};

}  // namespace corvalis
