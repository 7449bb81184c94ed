#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/serial_port.h"

namespace corvalis {

inline constexpr std::int16_t kPorts = 4;

/// The speeds that a Coder can be set to, in bits per second, as the setup screen lists them.
inline constexpr std::array<std::int16_t, 4> kBaudrates{2400, 4800, 9600, 19200};

/// A parity letter, its name on the setup screen, and the stop bits that a Coder uses with it.
struct Framing {
  const char* parity;
  const char* name;
  std::int16_t stop_bit;
};
inline constexpr std::array<Framing, 3> kFramings{{{.parity = "N", .name = "none", .stop_bit = 2},
                                                   {.parity = "E", .name = "even", .stop_bit = 1},
                                                   {.parity = "O", .name = "odd", .stop_bit = 1}}};

/// One way to open the port.
struct PortChoice {
  std::int16_t number = 1;  ///< 1 to `kPorts`
  std::int16_t baudrate = 0;
  std::string parity;
  std::int16_t stop_bit = 0;
};

/// Looks for the Coder on every port, at every speed, in every framing, and returns the first
/// choice on which it acknowledges an ENQ. `trying` hears each choice before it is tried. No boxes
/// are shown. The link is left as the last attempt left it: open if the Coder was found, else with
/// `LinkOpen` false and the port on the last choice. A choice that brings no answer takes 15
/// seconds, all 48 take 12 minutes.
[[nodiscard]] std::optional<PortChoice> FindCoder(
    SerialPort& port, const std::function<void(const PortChoice&)>& trying);

}  // namespace corvalis
