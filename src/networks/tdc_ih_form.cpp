#include "networks/tdc_ih_form.h"

#include "config/config_data.h"
#include "config/words.h"
#include "link/utility.h"

namespace corvalis {

TdcIhForm::TdcIhForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("TDC - IH - TMC");
  // What is being typed is kept.
  window.Unloading = [this] {
    for (Grid* grid : {&tdc.DBGrid1, &tdc.DBGrid2, &tmc.TmcDBGrid}) CommitGridRow(*grid);
  };
}

void TdcIhForm::Load() {
  SSTab1.SetTabCaptions({"TDC", "IH", Word("TMC System"), "TMC"});
  tdc.InitCaptions();
  ih.InitCaptions();
  tmc_system.InitCaptions();
  tmc.InitCaptions();
  tdc.Open();
  ih.Open();
  tmc_system.Open();
  tmc.Open();
  SSTab1.SetTabEnabled(kTmcSystem, configData->TmcEnable());
  SSTab1.SetTabEnabled(kTmc, configData->TmcEnable());
  SSTab1.SetTab(kTdc);
  window.ShowModal(main_menu_);
}

}  // namespace corvalis
