#include "link/transfer.h"

#include "app/transfer_bracket.h"
#include "config/config_data.h"
#include "link/serial_management.h"
#include "link/utility.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

void AskAbort() { EscPressed = true; }

bool AddressRuleAllows() {
  if (!configData->Satellite() || AddressSent) return true;
  WarnBeforeAddress();
  return false;
}

}  // namespace

void RunRead(Window& screen, const std::function<void()>& work) {
  RunTransfer(screen, {.may_start = {}, .work = work, .abort = AskAbort});
}

void RunSend(Window& screen, const std::function<void()>& work) {
  RunTransfer(screen, {.may_start = AddressRuleAllows, .work = work, .abort = AskAbort});
}

void RunBurst(Window& screen, int passes, const std::function<void()>& pass) {
  RunSend(screen, [&] {
    LinkError = kLinkOk;
    for (int i = 0; i < passes && LinkError == kLinkOk; ++i) {
      pass();
      Machine().pump->RunPending();
    }
  });
}

}  // namespace corvalis
