#pragma once

#include <functional>

#include "busy/wait_form.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/progress_bar.h"
#include "screen/timer.h"
#include "screen/window.h"

namespace corvalis {

/// True allows exactly one close of a transfer screen; each attempt to close uses it up.
extern bool TransferCloseAllowed;

/// Shown during a transfer to or from the Coder, one for each transfer, and the only way to abort
/// it. The operator can't close it.
class SerialCommunicationForm {
 public:
  /// `abort` is called when the operator presses ESC.
  explicit SerialCommunicationForm(const std::function<void()>& abort);

  Window window{this, "SerialCommunicationForm"};
  ProgressBar ProgressBar1{window, "ProgressBar1"};
  Label ProgressLabel{window, "ProgressLabel"};  ///< how far a run is; empty for a single frame
  Label HintLabel{window, "HintLabel"};          ///< what the operator may do now
  Timer Timer1{window, "Timer1", kBusyTickMs};
  Button Command1{window, "Command1"};
};

}  // namespace corvalis
