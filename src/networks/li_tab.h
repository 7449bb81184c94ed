#pragma once

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The linkage information.
class LiTab {
 public:
  explicit LiTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the values.
  void Open();
  void RefreshLiTab();

 private:
  Window& window_;

 public:
  CheckBox LiLaCheck{window_, "LiLaCheck"};
  CheckBox LiEgiCheck{window_, "LiEgiCheck"};
  CheckBox LiILCheck{window_, "LiILCheck"};
  Label LiLsnLabel{window_, "LiLsnLabel"};
  TextBox LiLsnText{window_, "LiLsnText"};
  Button ReadLiCommand{window_, "ReadLiCommand"};
  Button SendLiCommand{window_, "SendLiCommand"};
  Button SendLiBurstCommand{window_, "SendLiBurstCommand"};

 private:
  ListButtons buttons_;  // of a list of one
};

}  // namespace corvalis
