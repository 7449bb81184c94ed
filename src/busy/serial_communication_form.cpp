#include "busy/serial_communication_form.h"

#include <utility>

#include "config/language_data.h"
#include "screen/keys.h"

namespace corvalis {

bool TransferCloseAllowed = false;

SerialCommunicationForm::SerialCommunicationForm(const std::function<void()>& abort) {
  window.SetCaption("   Serial Communication");
  window.QueryUnload = [](bool& cancel) { cancel = !std::exchange(TransferCloseAllowed, false); };
  Timer1.Tick = [this] { ProgressBar1.Tick(); };
  Command1.SetCaption(languageData->MessageEscKey());
  Command1.SetToolTip(languageData->MessageEscTip());
  Command1.Click = abort;
  Command1.KeyPress = [abort](int key) {
    if (key == kKeyEscape) abort();
  };
}

}  // namespace corvalis
