#pragma once

#include "programme/af_a_tab.h"
#include "programme/af_b_tab.h"
#include "programme/pin_tab.h"
#include "programme/psn_plan_tab.h"
#include "programme/psn_tab.h"
#include "programme/ptyn_tab.h"
#include "programme/rt_tab.h"
#include "screen/tabs.h"
#include "screen/window.h"

namespace corvalis {

/// The screen of the programme's texts and frequencies, one tab for each list. It lives on once
/// created and is then only loaded and closed.
class PsnRtPinAfForm {
 public:
  /// `main_menu` is disabled while this screen is open, and gets the focus back.
  explicit PsnRtPinAfForm(Window& main_menu);

  /// Opens the screen on its first tab.
  void Load();

  /// The tabs, by their places.
  enum TabIndex { kPsn, kPlan, kRt, kPin, kAfA, kAfB, kPtyn };

  Window window{this, "PsnRtPinAfForm"};
  Tabs SSTab1{
      window, "SSTab1", {"PSN", "PSN PLAN", "RT", "PIN", "AF Method A", "AF Method B", "PTYN"}};
  PsnTab psn{window};
  PsnPlanTab plan{window};
  RtTab rt{window};
  PinTab pin{window};
  AfATab af_a{window};
  AfBTab af_b{window};
  PtynTab ptyn{window};

 private:
  Window& main_menu_;
};

}  // namespace corvalis
