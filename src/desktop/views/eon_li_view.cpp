#include "desktop/views/eon_li_view.h"

#include "desktop/widgets/layout.h"
#include "desktop/widgets/tabs_widget.h"

namespace corvalis::desktop {

EonLiView::EonLiView(EonLiForm& form) : WindowView(form.window) {
  auto* tabs = new TabsWidget(form.EONSSTab, this);
  WindowColumn(this)->addWidget(tabs);
}

}  // namespace corvalis::desktop
