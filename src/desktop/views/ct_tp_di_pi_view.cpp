#include "desktop/views/ct_tp_di_pi_view.h"

#include "desktop/views/ct_page.h"
#include "desktop/views/pi_ecc_lic_page.h"
#include "desktop/views/tp_di_page.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/presses/tabs_widget.h"

namespace corvalis::desktop {

CtTpDiPiView::CtTpDiPiView(CtTpDiPiForm& form) : WindowView(form.window) {
  auto* tabs = new TabsWidget(form.SSTab1, this);
  tabs->AddPage(new CtPage(form.ct, tabs));
  tabs->AddPage(new TpDiPage(form.tp_di, tabs));
  tabs->AddPage(new PiEccLicPage(form.pi_ecc_lic, tabs));
  WindowColumn(this)->addWidget(tabs);
}

}  // namespace corvalis::desktop
