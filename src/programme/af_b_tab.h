#pragma once

#include <functional>

#include "link/list_buttons.h"
#include "programme/af_b_data.h"
#include "screen/band_strip.h"
#include "screen/button.h"
#include "screen/combo_box.h"
#include "screen/control.h"
#include "screen/control_array.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The lists of alternative frequencies of method B, one at a time.
class AfBTab {
 public:
  explicit AfBTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the current list.
  void Open();

  /// The screen's: puts this tab before the others.
  std::function<void()> BringToFront;

 private:
  Window& window_;

 public:
  static constexpr int kBoxes = AfBData::GetMaxAfNum();

  Label ListNrLabel{window_, "ListNrLabel"};
  TextBox Text1{window_, "Text1"};  ///< list number
  Spinner VScroll1{window_, "VScroll1"};
  Label DescriptionLabel{window_, "DescriptionLabel"};
  ComboBox Combo2{window_, "Combo2"};  ///< the descriptions of all lists
  Label MainFreqLabel{window_, "MainFreqLabel"};
  Label AltFreqLabel{window_, "AltFreqLabel"};
  ControlArray<TextBox, kBoxes> Text2{window_, "Text2"};  ///< main frequency, alternatives
  BandStrip AfBBandStrip{window_, "AfBBandStrip"};
  Button Command4{window_, "Command4"};  ///< read one
  Button Command5{window_, "Command5"};  ///< read all
  Button Command2{window_, "Command2"};  ///< send one
  Button Command1{window_, "Command1"};  ///< send all
  Button Command3{window_, "Command3"};  ///< send all in a burst

 private:
  void SetListRules();
  void GoTo(std::int16_t list);
  void Step(int by);
  void LeaveNumber();
  void TakeDescription();

  void SetBoxRules();
  void PlacePoint(TextBox& box);
  void LeaveBox(int box);
  void ShowBox(int box);
  void ShowList();
  void ShowBand();

  ListButtons buttons_;
};

}  // namespace corvalis
