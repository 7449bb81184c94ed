#include "link/list_size.h"

#include <algorithm>
#include <string>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/serial_management.h"

namespace corvalis {

bool CoderCanBeAsked() {
  if (configData->Modem()) return configData->ModemHookOn();
  return !configData->Satellite() && LinkOpen;
}

void ListSize::Load(bool offered) {
  std::string text = ReadIniKey(source_.section, source_.key);
  if (source_.in_fields) text = GetToken(text, 0, kFieldSeparator);
  file_ = text.empty() ? source_.fallback : ParseDecimal<std::int16_t>(text).value_or(file_);
  const bool asked = offered && CoderCanBeAsked();
  if (!asked || !source_.keeps_answer) coder_ = kNotAsked;
  if (asked) source_.read_count(coder_);
  count_ = std::min(PickListCount(coder_, file_, source_.fallback), source_.limit);
}

void ListSize::Store() const {
  WriteIniKey(source_.section, source_.key, Digits(Count(), source_.digits));
}

}  // namespace corvalis
