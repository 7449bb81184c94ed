#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace corvalis::coder {

/// What the bytes behind a start byte turn out to be.
struct Delimited {
  enum class State {
    kUnfinished,  ///< more bytes have to come
    kWhole,       ///< `length` bytes are one frame, good or refused
    kBroken,      ///< no frame; something good may still begin inside these bytes
  };
  State state = State::kUnfinished;
  std::size_t length = 0;  ///< bytes of the frame, or of what was looked at
  int error = 0;           ///< a `Refusal` for the frame as such, 0 for a good one
  bool read = false;       ///< a read request
};

/// Finds the end of the frame that begins with `bytes[0]`, which is the start byte. No length
/// travels, so it follows from the command; a frame of an unknown command, or one too short, is
/// known as whole where an end byte and a checksum that fits are found. After a `pause` of the line
/// nothing is unfinished any more.
[[nodiscard]] Delimited Delimit(std::span<const std::uint8_t> bytes, bool pause);

}  // namespace corvalis::coder
