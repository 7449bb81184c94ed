#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "link/body.h"
#include "link/serial_management.h"

namespace corvalis {

/// What every command of the Coder is made of: the write pattern and the read pattern, with the
/// body written and read field by field.

using Writing = std::function<void(BodyWriter& body)>;
using Reading = std::function<void(BodyReader& body)>;

/// `frame`, with its body written.
[[nodiscard]] Frame Filled(Frame frame, const Writing& write);

/// Writes one item. A failure is reported under `label` and stays in `LinkError`.
void SendItem(CommandCode code, std::uint8_t index, std::string_view label, const Writing& write);

/// Reads one item. `read` isn't called on a failure, which is reported as by `SendItem`.
void ReadItem(CommandCode code, std::uint8_t index, std::string_view label, const Reading& read);

/// The same for a request with a body, for an answer of another size than that of the command
/// table, and for a number of attempts of its own.
void ReadItem(const Frame& request, std::size_t answer_size, std::string_view label,
              const Reading& read, int attempts = kReadAttempts);

/// A value that is known to fit, as the digits of a body give it.
[[nodiscard]] constexpr std::int16_t Short(std::int32_t value) {
  return static_cast<std::int16_t>(value);
}

}  // namespace corvalis
