#include "busy/transfer_bracket.h"

#include "busy/serial_communication_form.h"

namespace corvalis {

std::function<void()> TransferEnded;

namespace {

int standing = 0;

// A transfer screen, from here to the end of its block.
struct Standing {
  Standing() { ++standing; }
  ~Standing() { --standing; }
  Standing(const Standing&) = delete;
  Standing& operator=(const Standing&) = delete;
};

}  // namespace

bool TransferScreenStands() { return standing > 0; }

void RunTransfer(Window& screen, const Transfer& transfer) {
  screen.SetEnabled(false);
  if (!transfer.may_start || transfer.may_start()) {
    SerialCommunicationForm form(transfer.abort);
    const Standing stands;
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
