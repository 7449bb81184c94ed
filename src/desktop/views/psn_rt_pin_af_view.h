#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "programme/psn_rt_pin_af_form.h"

namespace corvalis::desktop {

/// The window of the programme's texts and frequencies.
class PsnRtPinAfView : public WindowView {
 public:
  explicit PsnRtPinAfView(PsnRtPinAfForm& form);
};

}  // namespace corvalis::desktop
