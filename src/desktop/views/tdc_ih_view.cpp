#include "desktop/views/tdc_ih_view.h"

#include "desktop/views/ih_page.h"
#include "desktop/views/tdc_page.h"
#include "desktop/views/tmc_page.h"
#include "desktop/views/tmc_system_page.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/presses/tabs_widget.h"

namespace corvalis::desktop {

TdcIhView::TdcIhView(TdcIhForm& form) : WindowView(form.window) {
  auto* tabs = new TabsWidget(form.SSTab1, this);
  tabs->AddPage(new TdcPage(form.tdc, tabs));
  tabs->AddPage(new IhPage(form.ih, tabs));
  tabs->AddPage(new TmcSystemPage(form.tmc_system, tabs));
  tabs->AddPage(new TmcPage(form.tmc, tabs));
  WindowColumn(this)->addWidget(tabs);
}

}  // namespace corvalis::desktop
