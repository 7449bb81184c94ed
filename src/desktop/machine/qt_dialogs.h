#pragma once

#include "platform/dialogs.h"

namespace corvalis::desktop {

/// Message boxes of Qt, in front of the window that is in use. They have no help button, as no help
/// file comes with the program.
class QtDialogs : public Dialogs {
 public:
  void Show(const Box& box) override;
  void Beep() override;
};

}  // namespace corvalis::desktop
