#include "programme/psn_rt_pin_af_form.h"

#include "link/utility.h"

namespace corvalis {

PsnRtPinAfForm::PsnRtPinAfForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("PSN - RT - PIN - AF - PTYN");
  // What is being typed is kept.
  window.Unloading = [this] { CommitGridRow(psn.DBGrid1); };
}

void PsnRtPinAfForm::Load() {
  psn.InitCaptions();
  psn.Open();
  SSTab1.SetTab(kPsn);
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
