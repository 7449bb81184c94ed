#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "networks/eon_li_form.h"

namespace corvalis::desktop {

/// The window of the other networks.
class EonLiView : public WindowView {
 public:
  explicit EonLiView(EonLiForm& form);
};

}  // namespace corvalis::desktop
