#include "link/autosetting.h"

#include "link/serial_management.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

bool CoderAnswers(SerialPort& port, const PortChoice& choice) {
  const std::string settings = PortSettings(choice.baudrate, choice.parity, choice.stop_bit);
  LinkOpen = SerialOpen(port, choice.number, settings, /*show_errors=*/false);
  if (!LinkOpen) return false;
  LinkError = kErrorTxTimeout;  // a write that fails leaves it, and what stood there may be success
  ProbeCoder();
  return LinkOpen;
}

std::optional<PortChoice> Scan(SerialPort& port,
                               const std::function<void(const PortChoice&)>& trying) {
  for (std::int16_t number = 1; number <= kPorts; ++number) {
    for (const std::int16_t baudrate : kBaudrates) {
      for (const Framing& framing : kFramings) {
        const PortChoice choice{.number = number,
                                .baudrate = baudrate,
                                .parity = framing.parity,
                                .stop_bit = framing.stop_bit};
        trying(choice);
        // A port that doesn't open waits for nothing, and yet has to be seen passing by.
        Machine().pump->RunPending();
        if (CoderAnswers(port, choice)) return choice;
      }
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<PortChoice> FindCoder(SerialPort& port,
                                    const std::function<void(const PortChoice&)>& trying) {
  AutoSettingActive = true;
  std::optional<PortChoice> found = Scan(port, trying);
  AutoSettingActive = false;
  return found;
}

}  // namespace corvalis
