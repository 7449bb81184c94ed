#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "coder/commands.h"

namespace corvalis::coder {

/// What the bytes behind a start byte turn out to be.
struct Delimited {
  enum class State {
    kUnfinished,  ///< more bytes have to come
    kWhole,       ///< `length` bytes are one frame, good or refused
    kBroken,      ///< no frame; something good may still begin inside these bytes
  };
  State state = State::kUnfinished;
  std::size_t length = 0;            ///< bytes of the frame, or of what was looked at
  int error = 0;                     ///< a `Refusal` for the frame as such, 0 for a good one
  const Command* command = nullptr;  ///< of a good frame
  bool read = false;                 ///< a good frame is a read request
};

/// Finds the end of the frame that begins with `bytes[0]`, which is the start byte. No length
/// travels, so it follows from the command: a command has a read request, a longer write frame,
/// and the in-house pages a short frame between the two. As bodies may hold any byte, an end byte
/// where the shorter frame has it proves nothing: the shorter frame is taken at once if its
/// checksum fits too, and with another checksum only if the line pauses right behind it. (A body
/// that has both by chance, one in 65536 of random ones, is mistaken.)
///
/// A frame of an unknown command, or one too short, is known as whole where an end byte and a
/// checksum that fits are found. After a `pause` of the line nothing is unfinished any more.
[[nodiscard]] Delimited Delimit(std::span<const std::uint8_t> bytes, bool pause);

}  // namespace corvalis::coder
