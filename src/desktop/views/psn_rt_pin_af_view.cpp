#include "desktop/views/psn_rt_pin_af_view.h"

#include "desktop/views/af_a_page.h"
#include "desktop/views/af_b_page.h"
#include "desktop/views/pin_page.h"
#include "desktop/views/psn_page.h"
#include "desktop/views/psn_plan_page.h"
#include "desktop/views/ptyn_page.h"
#include "desktop/views/rt_page.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/presses/tabs_widget.h"

namespace corvalis::desktop {

PsnRtPinAfView::PsnRtPinAfView(PsnRtPinAfForm& form) : WindowView(form.window) {
  auto* tabs = new TabsWidget(form.SSTab1, this);
  tabs->AddPage(new PsnPage(form.psn, tabs));
  tabs->AddPage(new PsnPlanPage(form.plan, tabs));
  tabs->AddPage(new RtPage(form.rt, tabs));
  tabs->AddPage(new PinPage(form.pin, tabs));
  tabs->AddPage(new AfAPage(form.af_a, tabs));
  tabs->AddPage(new AfBPage(form.af_b, tabs));
  tabs->AddPage(new PtynPage(form.ptyn, tabs));
  WindowColumn(this)->addWidget(tabs);
}

}  // namespace corvalis::desktop
