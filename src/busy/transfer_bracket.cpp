#include "busy/transfer_bracket.h"

#include "busy/serial_communication_form.h"

namespace corvalis {

void RunTransfer(Window& screen, const Transfer& transfer) {
  screen.SetEnabled(false);
  if (!transfer.may_start || transfer.may_start()) {
    SerialCommunicationForm form(transfer.abort);
    form.window.Show(&screen);
    form.Command1.SetFocus();
    transfer.work();
    form.window.Hide();
    TransferCloseAllowed = true;
    form.window.Unload();
  }
  screen.SetEnabled(true);
  screen.SetFocus();
}

}  // namespace corvalis
