#pragma once

#include "networks/eon_tab.h"
#include "networks/li_tab.h"
#include "networks/ta_eon_tab.h"
#include "screen/tabs.h"
#include "screen/window.h"

namespace corvalis {

/// The screen of the other networks: their lists, the linkage information and the switches of their
/// announcements.
class EonLiForm {
 public:
  /// `main_menu` is disabled while the screen is open.
  explicit EonLiForm(Window& main_menu);

  void Load();

  Window window{this, "EonLiForm"};
  Tabs EONSSTab{window, "EONSSTab", {"EON", "LI", "TA EON"}};
  EonTab eon{window};
  LiTab li{window};
  TaEonTab ta_eon{window};

 private:
  enum Tab { kEon };
  Window& main_menu_;
};

}  // namespace corvalis
