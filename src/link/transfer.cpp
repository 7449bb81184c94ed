#include "link/transfer.h"

#include "busy/transfer_bracket.h"
#include "config/config_data.h"
#include "link/run_progress.h"
#include "link/serial_management.h"
#include "link/utility.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

void AskAbort() {
  EscPressed = true;
  Machine().dialogs->Dismiss();
}

}  // namespace

bool AddressRuleAllows() {
  if (!configData->Satellite() || AddressSent) return true;
  WarnBeforeAddress();
  return false;
}

void RunRead(Window& screen, const std::function<void()>& work) {
  RunTransfer(screen, {.may_start = {}, .work = work, .abort = AskAbort});
}

void RunSend(Window& screen, const std::function<void()>& work) {
  RunTransfer(screen, {.may_start = AddressRuleAllows, .work = work, .abort = AskAbort});
}

void RunBurst(Window& screen, int passes, const std::function<void()>& pass) {
  RunSend(screen, [&] { RunItems(passes, [&](int /*number*/) { pass(); }); });
}

void RunLive(Window& screen, const std::function<void()>& work) { RunRead(screen, work); }

void SendLive(const std::function<void()>& pass) {
  const int passes = configData->Satellite() ? configData->Burst() : 1;
  for (int i = 0; i < passes; ++i) pass();
}

bool RunItems(int count, const std::function<void(int)>& item, float pause) {
  LinkError = kLinkOk;
  RunLoop loop(count);
  for (int i = 0; i < count; ++i) {
    loop.At(i);
    item(i);
    if (LinkError != kLinkOk) return false;
    Machine().pump->RunPending();
    if (pause > 0) WaitSeconds(pause);
    // Bytes that came unasked, more than the queue holds, are no failure of an item.
    LinkError = kLinkOk;
  }
  return true;
}

void ShowTransferButtons(const TransferButtons& buttons, bool offered) {
  const bool one_way = configData->Satellite();
  for (Control* read : buttons.reads) read->SetVisible(offered && !one_way);
  for (Control* send : buttons.sends) send->SetVisible(offered);
  for (Control* burst : buttons.bursts) burst->SetVisible(offered && one_way);
}

}  // namespace corvalis
