#pragma once

#include <string>

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/grid.h"
#include "screen/window.h"

namespace corvalis {

/// The traffic messages.
class TmcTab {
 public:
  explicit TmcTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the messages from their start.
  void Open();

 private:
  Window& window_;

 public:
  Grid TmcDBGrid;
  /// Names the row that sending one and reading one are about.
  Label TmcSelectedLabel{window_, "TmcSelectedLabel"};
  Button ReadTmcCommand{window_, "ReadTmcCommand"};
  Button ReadAllTmcCommand{window_, "ReadAllTmcCommand"};
  Button SendTmcCommand{window_, "SendTmcCommand"};
  Button SendAllTmcCommand{window_, "SendAllTmcCommand"};
  Button SendAllBurstTmcCommand{window_, "SendAllBurstTmcCommand"};

 private:
  void SetTypingRules();
  void JudgePaste();
  void Toggle(int column);
  bool LeaveRow(int row);
  void ShowSelected();

  int last_key_ = 0;       // in the open cell, until what it did has been seen
  std::string last_text_;  // of the open cell, before that
  ListButtons buttons_;
};

}  // namespace corvalis
