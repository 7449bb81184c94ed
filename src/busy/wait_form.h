#pragma once

#include "busy/brand_marks.h"
#include "screen/control.h"
#include "screen/progress_bar.h"
#include "screen/timer.h"
#include "screen/window.h"

namespace corvalis {

/// The busy bars of the program move by one every so many milliseconds.
inline constexpr int kBusyTickMs = 10;

/// Shown while files are read and written. It lives on once created and is then only shown and
/// hidden, by whoever is busy. Its bar says that the program is alive, not how much is left.
class WaitForm {
 public:
  WaitForm();

  /// Takes the brand mark and the message from the present brand and language.
  void InitMask();

  Window window{this, "WaitForm"};
  BrandMarks marks{window};
  Label WaitMessage{window, "WaitMessage"};
  ProgressBar WaitBar{window, "WaitBar"};
  Timer WaitTimer{window, "WaitTimer", kBusyTickMs};
};

/// The one `WaitForm`, created on first use.
[[nodiscard]] WaitForm& TheWaitForm();
/// Lets go of it, at the end of the program or of a test.
void ReleaseWaitForm();

}  // namespace corvalis
