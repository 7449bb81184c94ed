#pragma once

#include <functional>

#include "screen/window.h"

namespace corvalis {

class SerialCommunicationForm;

/// What one transfer is made of.
struct Transfer {
  /// Asked before anything is shown; false drops the transfer. May be empty.
  std::function<bool()> may_start;
  std::function<void()> work;
  /// The operator asks to abort. The work sees to it at its next wait.
  std::function<void()> abort;
};

/// The road of every operation that talks to the Coder: disables `screen`, shows the transfer
/// screen in front of it, does the work, closes the transfer screen, enables `screen` and gives it
/// the focus.
void RunTransfer(Window& screen, const Transfer& transfer);

/// Called when a transfer is over and its screen has gone, before `screen` can be used again; null
/// for nobody.
extern std::function<void()> TransferEnded;

/// The transfer screen that stands; null for none.
[[nodiscard]] SerialCommunicationForm* StandingTransfer();
/// True while one stands, so while the operator can abort what is waited for.
[[nodiscard]] inline bool TransferScreenStands() { return StandingTransfer() != nullptr; }

}  // namespace corvalis
