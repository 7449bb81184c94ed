#include "app/link_words.h"

#include <filesystem>
#include <system_error>

#include "config/config_data.h"
#include "config/language_data.h"
#include "config/words.h"
#include "link/serial_management.h"

namespace corvalis {

namespace {

std::string PortName(int number) { return "COM " + std::to_string(number); }

std::string Mode() {
  if (configData->Satellite()) return "Satellite";
  return configData->Modem() ? "Modem" : "Local";
}

// How the port differs from what the record asks for; empty if it does not.
std::string OtherWay(const SerialPort& port) {
  const std::string name = PortName(port.CommPort());
  if (OneWayPort != configData->Satellite()) {
    return OneWayPort ? Word("%1 is open for a one-way path", {name})
                      : Word("%1 is open for a two-way link", {name});
  }
  if (port.CommPort() != configData->CommPort()) {
    return Word("%1 is open, not %2", {name, PortName(configData->CommPort())});
  }
  if (port.Settings() != PortSettings()) {
    return Word("%1 is open with %2, not %3", {name, port.Settings(), PortSettings()});
  }
  return {};
}

// True as long as nobody has said how the Coder is reached: there is no file yet.
bool IsDefaultOneWay() {
  std::error_code error;
  return configData->Satellite() && !std::filesystem::exists(configData->FullFileName(), error);
}

std::string Words(const SerialPort& port) {
  if (!port.PortOpen()) {
    return Word("%1: %2 is not open", {Mode(), PortName(configData->CommPort())});
  }
  if (const std::string other = OtherWay(port); !other.empty()) {
    return Word("%1; %2 or %3 opens it anew",
                {other, languageData->MainOpenKey(), languageData->MainSetupKey()});
  }
  std::string words = Mode() + ", " + PortName(port.CommPort()) + ", " + port.Settings() + ": ";
  if (CoderAnswered) {
    words +=
        (*CoderAnswered ? Word("the Coder answered") : Word("the Coder did not answer")) + ", ";
  }
  if (AddressSent) return words + Word("address sent");
  words += Word("no address sent");
  const bool reached = LinkOpen && (!configData->Modem() || configData->ModemHookOn());
  if (!reached) return words;
  return words + ": " + languageData->MainConnectionKey() + ", " +
         languageData->ConnectionSendAddressKey();
}

}  // namespace

std::string LinkInWords(const SerialPort& port) {
  if (!IsDefaultOneWay()) return Words(port);
  return Word("%1; one way, unless %2 says Local or Modem",
              {Words(port), languageData->MainSetupKey()});
}

}  // namespace corvalis
