#pragma once

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/grid.h"
#include "screen/list_box.h"
#include "screen/window.h"

namespace corvalis {

/// The programme items.
class PinTab {
 public:
  explicit PinTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the list from its start.
  void Open();

 private:
  Window& window_;

 public:
  Grid DBGrid4;
  /// The programme types, to choose from: shown over the type's cell while that is the current one.
  ListBox Combo1{window_, "Combo1"};
  /// Names the row that sending one and reading one are about.
  Label PinSelectedLabel{window_, "PinSelectedLabel"};
  Button Command6{window_, "Command6"};    ///< read one
  Button Command23{window_, "Command23"};  ///< read all
  Button Command8{window_, "Command8"};    ///< send one
  Button Command15{window_, "Command15"};  ///< send all
  Button Command7{window_, "Command7"};    ///< send all in a burst

  /// The column of `DBGrid4` that `Combo1` stands over.
  static constexpr int kTypeColumn = 3;

 private:
  void SetTypeRules();
  bool LeaveRow(int row);
  void Write(int row, int column, const std::string& text);
  void FollowCell();
  void ShowSelected();
  void ChooseType();

  bool following_ = false;  // the list is being put on the cell's type: nothing is chosen
  ListButtons buttons_;
};

}  // namespace corvalis
