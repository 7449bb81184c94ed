#include "station/ct_tp_di_pi_form.h"

namespace corvalis {

CtTpDiPiForm::CtTpDiPiForm(Window& main_menu) : main_menu_(main_menu) {
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
