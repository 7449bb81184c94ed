#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "send/command.h"
#include "send/outcome.h"

namespace corvalis::send {

/// An outcome as one object of JSON, without a line end. `line` is the command as it came, `number`
/// that of its line, 0 for none.
[[nodiscard]] std::string AsJson(std::string_view line, int number, const Outcome& outcome);

/// Bytes in hexadecimal digits, with blanks between them.
[[nodiscard]] std::string AsHex(std::span<const std::uint8_t> bytes);

}  // namespace corvalis::send
