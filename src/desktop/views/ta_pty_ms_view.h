#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "station/ta_pty_ms_form.h"

namespace corvalis::desktop {

/// The on-air screen: what is on stands in large letters, and each button is as large.
class TaPtyMsView : public WindowView {
 public:
  explicit TaPtyMsView(TaPtyMsForm& form);
};

}  // namespace corvalis::desktop
