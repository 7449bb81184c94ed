#include "networks/eon_li_form.h"

namespace corvalis {

EonLiForm::EonLiForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("EON - LI - TA EON");
  EONSSTab.Click = [this] { ta_eon.ShowNames(); };
}

void EonLiForm::Load() {
  eon.InitCaptions();
  li.InitCaptions();
  ta_eon.InitCaptions();
  eon.Open();
  li.Open();
  ta_eon.Open();
  EONSSTab.SetTab(kEon);
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
