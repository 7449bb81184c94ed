#pragma once

#include "networks/ih_tab.h"
#include "networks/tdc_tab.h"
#include "networks/tmc_system_tab.h"
#include "networks/tmc_tab.h"
#include "screen/tabs.h"
#include "screen/window.h"

namespace corvalis {

/// The screen of the data channels: transparent data, in-house pages and traffic messages.
class TdcIhForm {
 public:
  /// `main_menu` is disabled while the screen is open.
  explicit TdcIhForm(Window& main_menu);

  void Load();

  Window window{this, "TdcIhForm"};
  Tabs SSTab1{window, "SSTab1", {"TDC", "IH", "TMC System", "TMC"}};
  TdcTab tdc{window};
  IhTab ih{window};
  TmcSystemTab tmc_system{window};
  TmcTab tmc{window};

 private:
  enum Tab { kTdc, kIh, kTmcSystem, kTmc };
  Window& main_menu_;
};

}  // namespace corvalis
