#pragma once

#include <functional>
#include <string>

#include "air/af_codes.h"
#include "link/list_buttons.h"
#include "screen/band_strip.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/control_array.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The list of alternative frequencies of method A.
class AfATab {
 public:
  explicit AfATab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the list.
  void Open();
  /// False, after the operator has been told, while a box does not hold a frequency.
  [[nodiscard]] bool MayClose();

  /// The screen's: puts this tab before the others.
  std::function<void()> BringToFront;

 private:
  Window& window_;

 public:
  Label AlternativeFreqLabel{window_, "AlternativeFreqLabel"};
  ControlArray<TextBox, air::kAfEntries> Text39{window_, "Text39"};
  BandStrip AfABandStrip{window_, "AfABandStrip"};
  Button Command13{window_, "Command13"};  ///< read
  Button Command11{window_, "Command11"};  ///< send
  Button Command12{window_, "Command12"};  ///< send in a burst

 private:
  void LeaveBox(int box);
  void Keep(int box);
  void Refuse(int box, const std::string& shown);
  void ShowAfBox(int box);
  void ShowBoxes();
  void ShowAvailability(int available);
  void ShowBand();

  ListButtons buttons_;
};

}  // namespace corvalis
