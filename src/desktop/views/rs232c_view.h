#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "link/rs232c_form.h"

namespace corvalis::desktop {

/// The setup screen: the way to the Coder, the port, the modem and the language.
class RS232CView : public WindowView {
 public:
  explicit RS232CView(RS232CForm& form);
};

}  // namespace corvalis::desktop
