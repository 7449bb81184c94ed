#pragma once

#include "screen/tabs.h"
#include "screen/window.h"
#include "station/ct_tab.h"
#include "station/pi_ecc_lic_tab.h"
#include "station/tp_di_tab.h"

namespace corvalis {

/// The screen of the values that identify the station, one tab for each group of them. It lives on
/// once created and is then only loaded and closed.
class CtTpDiPiForm {
 public:
  /// `main_menu` is disabled while this screen is open, and gets the focus back.
  explicit CtTpDiPiForm(Window& main_menu);

  /// Opens the screen.
  void Load();

  Window window{this, "CtTpDiPiForm"};
  /// The three below, in their order.
  Tabs SSTab1{window, "SSTab1", {"CT", "TP-DI", "PI-ECC-LIC"}};
  CtTab ct{window};
  TpDiTab tp_di{window};
  PiEccLicTab pi_ecc_lic{window};

 private:
  Window& main_menu_;
  bool loaded_before_ = false;
};

}  // namespace corvalis
