#pragma once

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/grid.h"
#include "screen/window.h"

namespace corvalis {

/// The radio texts.
class RtTab {
 public:
  explicit RtTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the list from its start.
  void Open();

 private:
  Window& window_;

 public:
  Grid DBGrid3;
  /// Names the row that sending one and reading one are about.
  Label RtSelectedLabel{window_, "RtSelectedLabel"};
  /// How many of its places the text of that row takes.
  Label RtCountLabel{window_, "RtCountLabel"};
  /// That text, for whoever says what radios show of it.
  Label RtRadioLabel{window_, "RtRadioLabel"};
  Button Command9{window_, "Command9"};    ///< read one
  Button Command22{window_, "Command22"};  ///< read all
  Button Command14{window_, "Command14"};  ///< send one
  Button Command21{window_, "Command21"};  ///< send all
  Button Command10{window_, "Command10"};  ///< send all in a burst

 private:
  void ShowSelected();

  ListButtons buttons_;
};

}  // namespace corvalis
