#include "busy/wait_form.h"

#include <memory>

#include "config/language_data.h"

namespace corvalis {

namespace {
std::unique_ptr<WaitForm> the_form;
}  // namespace

WaitForm::WaitForm() {
  window.SetCaption(" Wait");
  WaitTimer.Tick = [this] { WaitBar.Tick(); };
  // The operator can't close it: it goes when the work is done.
  window.QueryUnload = [](bool& cancel) { cancel = true; };
  InitMask();
}

void WaitForm::InitMask() {
  marks.Follow();
  WaitMessage.SetCaption(languageData->MessageWaitKey());
}

WaitForm& TheWaitForm() {
  if (!the_form) the_form = std::make_unique<WaitForm>();
  return *the_form;
}

void ReleaseWaitForm() { the_form.reset(); }

}  // namespace corvalis
