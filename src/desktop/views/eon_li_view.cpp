#include "desktop/views/eon_li_view.h"

#include "desktop/views/eon_page.h"
#include "desktop/views/li_page.h"
#include "desktop/views/ta_eon_page.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/presses/tabs_widget.h"

namespace corvalis::desktop {

EonLiView::EonLiView(EonLiForm& form) : WindowView(form.window) {
  auto* tabs = new TabsWidget(form.EONSSTab, this);
  tabs->AddPage(new EonPage(form.eon, tabs));
  tabs->AddPage(new LiPage(form.li, tabs));
  tabs->AddPage(new TaEonPage(form.ta_eon, tabs));
  WindowColumn(this)->addWidget(tabs);
}

}  // namespace corvalis::desktop
