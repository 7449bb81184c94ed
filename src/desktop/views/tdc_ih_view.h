#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "networks/tdc_ih_form.h"

namespace corvalis::desktop {

/// The window of the data channels.
class TdcIhView : public WindowView {
 public:
  explicit TdcIhView(TdcIhForm& form);
};

}  // namespace corvalis::desktop
