#include "link/modem.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "link/serial_management.h"
#include "link/wait.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr double kAnswerSeconds = 20;
constexpr std::string_view kEndOfLine = "\r\n";
constexpr std::string_view kEscape = "+++";
constexpr std::string_view kHangUp = "ATH0\r\n";

}  // namespace

void SendModemText(std::string_view text) {
  SerialPort* port = LinkPort();
  if (port == nullptr) return;
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  port->ClearInput();
  ReceiveQueue()->QReset();
  port->Output(bytes);
}

std::string ReadReceivedText() {
  std::string text;
  Queue* queue = ReceiveQueue();
  while (queue != nullptr && !queue->QEmpty()) text += static_cast<char>(queue->QPop());
  return text;
}

void ModemDial(std::string_view number, bool tone) {
  std::string text = tone ? "ATDT" : "ATDP";
  text.append(number).append(kEndOfLine);
  SendModemText(text);
}

void ModemHangUp() {
  SendModemText(kEscape);
  Wait wait = Wait::Until(std::nearbyint(Machine().clock->Timer()) + kAnswerSeconds);
  for (;;) {
    wait.Pump();
    const Queue* queue = ReceiveQueue();
    if (queue != nullptr && !queue->QEmpty()) break;
    if (wait.Expired()) return;
  }
  SendModemText(kHangUp);
}

}  // namespace corvalis
