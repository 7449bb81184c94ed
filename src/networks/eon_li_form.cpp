#include "networks/eon_li_form.h"

namespace corvalis {

EonLiForm::EonLiForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("EON - LI - TA EON");
}

void EonLiForm::Load() {
  EONSSTab.SetTab(kEon);
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
