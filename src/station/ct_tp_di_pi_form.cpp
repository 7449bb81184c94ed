#include "station/ct_tp_di_pi_form.h"

#include <chrono>

#include "config/config_data.h"
#include "platform/platform.h"

namespace corvalis {

CtTpDiPiForm::CtTpDiPiForm(Window& main_menu)
    : window(this, "CtTpDiPiForm"), pi_ecc_lic(window), main_menu_(main_menu) {
  window.SetCaption("CT - TP - DI - PI - ECC - LIC");
}

void CtTpDiPiForm::Load() {
  if (!loaded_before_) {
    configData->SetDateValue(std::chrono::floor<std::chrono::days>(Machine().clock->Now()));
    loaded_before_ = true;
  }
  pi_ecc_lic.InitCaptions();
  pi_ecc_lic.Open();
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
