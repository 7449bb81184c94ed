#include "busy/transfer_bracket.h"

#include <utility>

#include "busy/serial_communication_form.h"

namespace corvalis {

std::function<void()> TransferEnded;

namespace {

SerialCommunicationForm* standing = nullptr;

// A transfer screen, from here to the end of its block.
struct Standing {
  explicit Standing(SerialCommunicationForm& form) : before(std::exchange(standing, &form)) {}
  ~Standing() { standing = before; }
  Standing(const Standing&) = delete;
  Standing& operator=(const Standing&) = delete;

  SerialCommunicationForm* before;
};

}  // namespace

SerialCommunicationForm* StandingTransfer() { return standing; }

void RunTransfer(Window& screen, const Transfer& transfer) {
  screen.SetEnabled(false);
  if (!transfer.may_start || transfer.may_start()) {
    SerialCommunicationForm form(transfer.abort);
    const Standing stands(form);
    form.window.Show(&screen);
    form.Command1.SetFocus();
    transfer.work();
    form.window.Hide();
    TransferCloseAllowed = true;
    form.window.Unload();
    if (TransferEnded) TransferEnded();
  }
  screen.SetEnabled(true);
  screen.SetFocus();
}

}  // namespace corvalis
