#pragma once

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// What the traffic message channel says of itself: location table, service and scopes.
class TmcSystemTab {
 public:
  explicit TmcSystemTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the values.
  void Open();
  /// Shows the values as they stand.
  void RefreshTmcSystemTab();

 private:
  Window& window_;

 public:
  /// Both only show their number; it is stepped.
  TextBox LtnText{window_, "LtnText"};
  TextBox SidText{window_, "SidText"};
  Spinner LtnVScroll{window_, "LtnVScroll"};
  Spinner SidVScroll{window_, "SidVScroll"};
  CheckBox InternationalCheck{window_, "InternationalCheck"};
  CheckBox NationalCheck{window_, "NationalCheck"};
  CheckBox RegionalCheck{window_, "RegionalCheck"};
  CheckBox UrbanCheck{window_, "UrbanCheck"};
  Button ReadTmcSystemCommand{window_, "ReadTmcSystemCommand"};
  Button SendTmcSystemCommand{window_, "SendTmcSystemCommand"};
  Button SendTmcSystemBurstCommand{window_, "SendTmcSystemBurstCommand"};

 private:
  void StepLtn(int by);
  void StepSid(int by);

  ListButtons buttons_;
};

}  // namespace corvalis
