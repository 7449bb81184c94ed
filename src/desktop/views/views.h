#pragma once

#include "desktop/widgets/windows/screen_host.h"

namespace corvalis::desktop {

/// Tells the host which form is drawn by which view. A new screen gets its line here.
void RegisterViews(QtScreenHost& host);

}  // namespace corvalis::desktop
