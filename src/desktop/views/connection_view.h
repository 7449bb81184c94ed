#pragma once

#include "app/connection_form.h"
#include "desktop/widgets/windows/window_view.h"

namespace corvalis::desktop {

/// The window of the Coder ID and of a whole configuration's transfer.
class ConnectionView : public WindowView {
 public:
  explicit ConnectionView(ConnectionForm& form);
};

}  // namespace corvalis::desktop
