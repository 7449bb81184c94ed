#pragma once

#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/control_array.h"
#include "screen/meter.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"
#include "station/groups_data.h"

namespace corvalis {

/// The group sequence: which of the 32 groups the Coder sends, how often, and what share of the
/// cycle each group number takes. It lives on once created and is then only loaded and closed.
class EditGroupsForm {
 public:
  /// `main_menu` is disabled while this screen is open, and gets the focus back.
  explicit EditGroupsForm(Window& main_menu);

  /// Opens the screen.
  void Load();

  Window window{this, "EditGroupsForm"};
  // By position in the group table.
  ControlArray<CheckBox, kGroups> Check1{window, "Check1"};
  ControlArray<TextBox, kGroups> Text1{window, "Text1"};
  ControlArray<Spinner, kGroups> VScroll2{window, "VScroll2"};
  // By group number: the share of both versions, in words and as a bar.
  ControlArray<Label, kGroupNumbers> PercentText{window, "PercentText"};
  ControlArray<Meter, kGroupNumbers> PercentBar{window, "PercentBar"};
  /// Names the group that sending one and reading one are about.
  Label SelectedLabel{window, "SelectedLabel"};
  Button Command1{window, "Command1"};
  Button Command11{window, "Command11"};
  Button Command12{window, "Command12"};
  Button Command13{window, "Command13"};
  Button Command2{window, "Command2"};

 private:
  void InitCaptions();
  void Select(int group);
  void Tick(int group);
  void Step(int group, int step);

  // What is shown of one group, from the table.
  void ShowGroup(int group);
  void ShowTone(int group);
  void ShowShares();

  void SendAll();
  void SendSelected();
  void ReadAll();
  void ReadSelected();
  void ReadGroup(int group);

  Window& main_menu_;
  int selected_ = 0;
};

}  // namespace corvalis
