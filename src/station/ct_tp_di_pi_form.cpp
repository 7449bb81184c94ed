#include "station/ct_tp_di_pi_form.h"

namespace corvalis {

CtTpDiPiForm::CtTpDiPiForm(Window& main_menu)
    : window(this, "CtTpDiPiForm"),
      SSTab1(window, "SSTab1", {"CT", "TP-DI", "PI-ECC-LIC"}),
      ct(window),
      tp_di(window),
      pi_ecc_lic(window),
      main_menu_(main_menu) {
  window.SetCaption("CT - TP - DI - PI - ECC - LIC");
}

void CtTpDiPiForm::Load() {
  if (!loaded_before_) {
    ct.FirstOpening();
    loaded_before_ = true;
  }
  ct.InitCaptions();
  tp_di.InitCaptions();
  pi_ecc_lic.InitCaptions();
  ct.Open();
  tp_di.Open();
  pi_ecc_lic.Open();
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
