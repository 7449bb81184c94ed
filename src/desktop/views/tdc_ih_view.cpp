#include "desktop/views/tdc_ih_view.h"

#include "desktop/widgets/layout.h"
#include "desktop/widgets/tabs_widget.h"

namespace corvalis::desktop {

TdcIhView::TdcIhView(TdcIhForm& form) : WindowView(form.window) {
  auto* tabs = new TabsWidget(form.SSTab1, this);
  WindowColumn(this)->addWidget(tabs);
}

}  // namespace corvalis::desktop
