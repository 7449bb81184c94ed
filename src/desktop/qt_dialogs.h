#pragma once

#include <functional>

#include "platform/dialogs.h"

class QMessageBox;

namespace corvalis::desktop {

/// Message boxes of Qt, in front of the window that is in use. Those that name a help file have a
/// help button, if somebody helps. All other windows wait for the answer; but during a transfer the
/// program has disabled them itself, and the transfer screen stays usable beside the box.
class QtDialogs : public Dialogs {
 public:
  void Show(const Box& box) override;
  void Dismiss() override;
  void Beep() override;

  /// The help button of a box has been pressed; the box stays unanswered.
  std::function<void(const QMessageBox& box)> HelpAsked;
};

}  // namespace corvalis::desktop
