#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "station/ct_tp_di_pi_form.h"

namespace corvalis::desktop {

/// The screen of clock time, TP and DI, and PI, ECC and LIC.
class CtTpDiPiView : public WindowView {
 public:
  explicit CtTpDiPiView(CtTpDiPiForm& form);
};

}  // namespace corvalis::desktop
