#include "link/list_size.h"

#include <string>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "link/serial_management.h"

namespace corvalis {

bool CoderCanBeAsked() {
  if (configData->Modem()) return configData->ModemHookOn();
  return !configData->Satellite() && LinkOpen;
}

void ListSize::Load(bool offered) {
  const std::string text = ReadIniKey(source_.section, source_.key);
  if (text.empty()) {
    file_ = source_.fallback;
  } else {
    file_ = ParseDecimal<std::int16_t>(text).value_or(file_);
  }
  std::int16_t coder = -1;
  if (offered && CoderCanBeAsked()) source_.read_count(coder);
  count_ = PickListCount(coder, file_, source_.fallback);
}

void ListSize::Store() const {
  WriteIniKey(source_.section, source_.key, Digits(Count(), source_.digits));
}

}  // namespace corvalis
