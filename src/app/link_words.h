#pragma once

#include <string>

#include "platform/serial_port.h"

namespace corvalis {

/// What is known of the link, in words for the operator: mode, port and settings, whether the Coder
/// answered, whether an address went out. A port that stands open in another way than the station
/// record has it is told instead. Needs the record and the texts.
[[nodiscard]] std::string LinkInWords(const SerialPort& port);

}  // namespace corvalis
