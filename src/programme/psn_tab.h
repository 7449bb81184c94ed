#pragma once

#include <string>

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/grid.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The programme service names: the plain list, or the pages where the Coder model has them. A
/// scrolling text fills a run of rows so that it moves across a receiver's display.
class PsnTab {
 public:
  explicit PsnTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link and the Coder model want, and the list from its start.
  void Open();

 private:
  Window& window_;

 public:
  Grid DBGrid1;
  /// Names the row that sending one and reading one are about.
  Label PsnSelectedLabel{window_, "PsnSelectedLabel"};
  /// The name in it, for whoever says what radios show of it.
  Label PsnRadioLabel{window_, "PsnRadioLabel"};

  // The scrolling text: the text, its first and last row, their time, and the button that fills
  // them.
  Label ScrollTextLabel{window_, "ScrollTextLabel"};
  TextBox Text11{window_, "Text11"};
  Label ScrollFromLabel{window_, "ScrollFromLabel"};
  TextBox Text12{window_, "Text12"};
  Label ScrollToLabel{window_, "ScrollToLabel"};
  TextBox Text13{window_, "Text13"};
  Label ScrollTimeLabel{window_, "ScrollTimeLabel"};
  TextBox Text14{window_, "Text14"};
  Button Command24{window_, "Command24"};

  // The pages.
  Label Text10{window_, "Text10"};
  TextBox PageNumberText{window_, "PageNumberText"};
  Spinner PageNumberScroll{window_, "PageNumberScroll"};
  Button ReadPsnActiveButton{window_, "ReadPsnActiveButton"};
  Button SendPsnActiveButton{window_, "SendPsnActiveButton"};
  Button SendPsnActiveBurstButton{window_, "SendPsnActiveBurstButton"};

  Button Command19{window_, "Command19"};  ///< read one
  Button Command20{window_, "Command20"};  ///< read all
  Button Command17{window_, "Command17"};  ///< send one
  Button Command16{window_, "Command16"};  ///< send all
  Button Command18{window_, "Command18"};  ///< send all in a burst

 private:
  void SetGridRules();
  void SetScrollRules();
  void SetPageRules();

  void CheckRotation(int row);
  void ShowSelected();

  void FitScrollText();
  void TakeScrollRow(TextBox& box, void (*set)(std::uint8_t));
  void TakeScrollTime();
  void ShowScroll();
  void ApplyScrollText();

  void TurnPage(int step);
  void ShowPage();
  void ReadActive();

  bool showing_ = false;  // the boxes are being filled from the list: nothing is taken
  ListButtons buttons_;
};

}  // namespace corvalis
