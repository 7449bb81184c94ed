#pragma once

#include <vector>

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/grid.h"
#include "screen/window.h"

namespace corvalis {

/// The transparent data channels: the subchannels of channel 0 in one grid, channels 1 to 31 in
/// another. The grid that was gone into last is the selected one.
class TdcTab {
 public:
  explicit TdcTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and both tables from their start.
  void Open();

 private:
  Window& window_;

 public:
  Label Tdc0Label{window_, "Tdc0Label"};
  Label Tdc0MarkLabel{window_, "Tdc0MarkLabel"};  ///< says that the grid is the selected one
  Grid DBGrid1;
  Label TdcLabel{window_, "TdcLabel"};
  Label TdcMarkLabel{window_, "TdcMarkLabel"};
  Grid DBGrid2;
  /// Names the row that sending one and reading one are about.
  Label TdcSelectedLabel{window_, "TdcSelectedLabel"};
  Button Command2{window_, "Command2"};  ///< reads the selected row
  Button Command3{window_, "Command3"};  ///< reads all
  Button Command5{window_, "Command5"};  ///< sends the selected row
  Button Command6{window_, "Command6"};  ///< sends all
  Button Command4{window_, "Command4"};  ///< sends all in a burst

 private:
  void SetGrid1Rules();
  void SetGrid2Rules();
  void SetTypingRules(Grid& grid);
  [[nodiscard]] std::vector<int> SelectedIn(const Grid& grid) const;
  void Select(Grid& grid);
  void ShowSelected();

  Grid* selected_ = &DBGrid1;
  ListButtons buttons_;
};

}  // namespace corvalis
