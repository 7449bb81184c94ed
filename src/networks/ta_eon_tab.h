#pragma once

#include <cstdint>

#include "link/list_buttons.h"
#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/control_array.h"
#include "screen/window.h"

namespace corvalis {

inline constexpr int kTaEonSwitches = 10;

/// The announcement switches of other networks, to be used live. They show what was read or clicked
/// here since the screen opened, not what the lists hold: that is meant.
class TaEonTab {
 public:
  explicit TaEonTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants; all switches are off and none is selected.
  void Open();
  /// Shows what the lists are called now.
  void ShowNames();

 private:
  Window& window_;

 public:
  ControlArray<CheckBox, kTaEonSwitches> TaEonCheck{window_, "TaEonCheck"};
  ControlArray<Label, kTaEonSwitches> Text2{window_, "Text2"};  ///< the switches' numbers
  /// Name and PI of each switch's network.
  ControlArray<Label, kTaEonSwitches> TaEonNameLabel{window_, "TaEonNameLabel"};
  /// The state of each switch in words.
  ControlArray<Label, kTaEonSwitches> TaEonStateLabel{window_, "TaEonStateLabel"};
  Button ReadTaEonCommand{window_, "ReadTaEonCommand"};
  Button ReadTaEonAllCommand{window_, "ReadTaEonAllCommand"};
  Button SendTaEonCommand{window_, "SendTaEonCommand"};
  Button SendTaEonAllCommand{window_, "SendTaEonAllCommand"};
  Button SendTaEonAllBurstCommand{window_, "SendTaEonAllBurstCommand"};
  /// Names the network that reading one and sending one are about.
  Label TaEonSelectedLabel{window_, "TaEonSelectedLabel"};

 private:
  [[nodiscard]] static int Switches();
  void Select(int i);
  void ShowState(int i);

  static constexpr std::int16_t kNone = -1;
  std::int16_t selected_ta_ = kNone;  // the switch that last took the focus
  bool opening_ = false;              // what the switches are set to then is stored nowhere
  ListButtons buttons_;
};

}  // namespace corvalis
