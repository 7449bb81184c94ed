#include "config/ini_management.h"

#include "config/config_data.h"
#include "config/conversions.h"
#include "platform/platform.h"

namespace corvalis {

std::string ReadIniKey(std::string_view section, std::string_view key) {
  std::string value = Machine().profiles->Read(configData->FullFileName(), section, key);
  Machine().pump->RunPending();
  return value;
}

void WriteIniKey(std::string_view section, std::string_view key, std::string_view value) {
  ProfileStore& profiles = *Machine().profiles;
  profiles.Write(configData->FullFileName(), section, key, value);
  if (!profiles.Catching()) Machine().pump->RunPending();
}

bool ReadIniSwitch(std::string_view section, std::string_view key) {
  return ReadIniKey(section, key) == OnOff(true);
}

void WriteIniSwitch(std::string_view section, std::string_view key, bool on) {
  WriteIniKey(section, key, std::string(OnOff(on)));
}

}  // namespace corvalis
