#pragma once

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

 private:
  enum Tab { kEon, kLi, kTaEon };
  Window& main_menu_;
};

}  // namespace corvalis
