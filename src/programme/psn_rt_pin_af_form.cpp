#include "programme/psn_rt_pin_af_form.h"

#include "config/config_data.h"
#include "config/words.h"
#include "link/utility.h"

namespace corvalis {

PsnRtPinAfForm::PsnRtPinAfForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("PSN - RT - PIN - AF - PTYN");
  af_a.BringToFront = [this] { SSTab1.SetTab(kAfA); };
  af_b.BringToFront = [this] { SSTab1.SetTab(kAfB); };
  window.QueryUnload = [this](bool& cancel) {
    if (SSTab1.TabVisible(kAfA)) cancel = !af_a.MayClose();
  };
  // What is being typed is kept.
  window.Unloading = [this] {
    for (Grid* grid : {&psn.DBGrid1, &plan.PsnPlanDBGrid, &rt.DBGrid3, &pin.DBGrid4}) {
      CommitGridRow(*grid);
    }
  };
}

void PsnRtPinAfForm::Load() {
  SSTab1.SetTabCaptions(
      {"PSN", Word("PSN PLAN"), "RT", "PIN", Word("AF Method A"), Word("AF Method B"), "PTYN"});
  psn.InitCaptions();
  plan.InitCaptions();
  rt.InitCaptions();
  pin.InitCaptions();
  af_a.InitCaptions();
  af_b.InitCaptions();
  ptyn.InitCaptions();
  psn.Open();
  plan.Open();
  rt.Open();
  pin.Open();
  af_a.Open();
  af_b.Open();
  ptyn.Open();
  SSTab1.SetTabVisible(kPlan, configData->PsnPlanEnable());
  SSTab1.SetTabVisible(kAfA, configData->AfMethodA());
  SSTab1.SetTabVisible(kAfB, !configData->AfMethodA());
  SSTab1.SetTabVisible(kPtyn, configData->PtynEnable());
  SSTab1.SetTab(kPsn);
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
