#include "programme/psn_rt_pin_af_form.h"

#include "config/config_data.h"
#include "link/utility.h"

namespace corvalis {

PsnRtPinAfForm::PsnRtPinAfForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("PSN - RT - PIN - AF - PTYN");
  // What is being typed is kept.
  window.Unloading = [this] {
    for (Grid* grid : {&psn.DBGrid1, &plan.PsnPlanDBGrid, &rt.DBGrid3, &pin.DBGrid4}) {
      CommitGridRow(*grid);
    }
  };
}

void PsnRtPinAfForm::Load() {
  psn.InitCaptions();
  plan.InitCaptions();
  rt.InitCaptions();
  pin.InitCaptions();
  ptyn.InitCaptions();
  psn.Open();
  plan.Open();
  rt.Open();
  pin.Open();
  ptyn.Open();
  SSTab1.SetTabVisible(kPlan, configData->PsnPlanEnable());
  for (const int tab : {kAfA, kAfB}) SSTab1.SetTabVisible(tab, false);
  SSTab1.SetTabVisible(kPtyn, configData->PtynEnable());
  SSTab1.SetTab(kPsn);
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
