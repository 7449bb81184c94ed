#pragma once

#include <cstdint>
#include <span>

namespace corvalis {

/// The grammar that both ends of the line share. A frame is
///
///     start 0x02 | command | index | body, 0 to 131 bytes | end 0x03 | checksum
///
/// with no length, no stuffing and no escape; the checksum is the XOR of every byte before it.
inline constexpr std::uint8_t kStart = 0x02;
inline constexpr std::uint8_t kEnd = 0x03;

/// Single bytes that stand for themselves, outside any frame.
inline constexpr std::uint8_t kEnq = 0x05;  ///< program to Coder: probe, drops the addressing
inline constexpr std::uint8_t kAck = 0x06;  ///< Coder to program: accepted
inline constexpr std::uint8_t kNak = 0x15;  ///< Coder to program: refused, an error frame follows

/// The bytes of a frame that are not its body: start, command, index, end, checksum.
inline constexpr int kFrameOverhead = 5;
inline constexpr int kCommandOffset = 1;
inline constexpr int kIndexOffset = 2;
inline constexpr int kBodyOffset = 3;

/// The XOR of all bytes; 0 for a whole good frame with its checksum.
[[nodiscard]] constexpr std::uint8_t FrameChecksum(std::span<const std::uint8_t> bytes) {
  std::uint8_t sum = 0;
  for (const std::uint8_t byte : bytes) sum = static_cast<std::uint8_t>(sum ^ byte);
  return sum;
}

}  // namespace corvalis
