#pragma once

#include <string>

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/grid.h"
#include "screen/window.h"

namespace corvalis {

/// The plan by which the Coder changes between the pages of names: at a time on weekdays, or at a
/// time on one date.
class PsnPlanTab {
 public:
  explicit PsnPlanTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the plan from its start.
  void Open();

 private:
  Window& window_;

 public:
  Grid PsnPlanDBGrid;
  /// Names the row that sending one and reading one are about.
  Label PlanSelectedLabel{window_, "PlanSelectedLabel"};
  Button ReadPlanCommand{window_, "ReadPlanCommand"};
  Button ReadAllPlanCommand{window_, "ReadAllPlanCommand"};
  Button SendPlanCommand{window_, "SendPlanCommand"};
  Button SendAllPlanCommand{window_, "SendAllPlanCommand"};
  Button SendBurstPlanCommand{window_, "SendBurstPlanCommand"};

 private:
  void SetTypingRules();
  void TypeTime(int key);
  void TypeDate(int key);
  static Grid::Leave LeaveCell(int column, std::string& text);
  void Toggle(int column);
  bool LeaveRow(int row);
  void ShowSelected();

  ListButtons buttons_;
};

}  // namespace corvalis
