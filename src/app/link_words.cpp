#include "app/link_words.h"

#include <filesystem>
#include <system_error>

#include "config/config_data.h"
#include "config/language_data.h"
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
  if (OneWayPort != configData->Satellite()) {
    return OneWayPort ? " is open for a one-way path" : " is open for a two-way link";
  }
  if (port.CommPort() != configData->CommPort()) {
    return " is open, not " + PortName(configData->CommPort());
  }
  if (port.Settings() != PortSettings()) {
    return " is open with " + port.Settings() + ", not " + PortSettings();
  }
  return {};
}

// True as long as nobody has said how the Coder is reached: there is no file yet.
bool IsDefaultOneWay() {
  std::error_code error;
  return configData->Satellite() && !std::filesystem::exists(configData->FullFileName(), error);
}

std::string Words(const SerialPort& port) {
  if (!port.PortOpen()) return Mode() + ": " + PortName(configData->CommPort()) + " is not open";
  const std::string name = PortName(port.CommPort());
  if (const std::string other = OtherWay(port); !other.empty()) {
    return name + other + "; " + languageData->MainOpenKey() + " or " +
           languageData->MainSetupKey() + " opens it anew";
  }
  std::string words = Mode() + ", " + name + ", " + port.Settings() + ": ";
  if (CoderAnswered) {
    words += *CoderAnswered ? "the Coder answered, " : "the Coder did not answer, ";
  }
  if (AddressSent) return words + "address sent";
  words += "no address sent";
  const bool reached = LinkOpen && (!configData->Modem() || configData->ModemHookOn());
  if (!reached) return words;
  return words + ": " + languageData->MainConnectionKey() + ", " +
         languageData->ConnectionSendAddressKey();
}

}  // namespace

std::string LinkInWords(const SerialPort& port) {
  if (!IsDefaultOneWay()) return Words(port);
  return Words(port) + "; one way, unless " + languageData->MainSetupKey() + " says Local or Modem";
}

}  // namespace corvalis
