#pragma once

#include "app/main_form.h"
#include "desktop/widgets/windows/window_view.h"

namespace corvalis::desktop {

/// The main menu: the working screens at the left, the configuration file at the right.
class MainView : public WindowView {
 public:
  explicit MainView(MainForm& form);
};

}  // namespace corvalis::desktop
