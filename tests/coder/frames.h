#pragma once

#include <cstdint>
#include <string_view>

#include "coder/coder.h"
#include "link/frame.h"

namespace corvalis::coder {

inline Bytes Text(std::string_view text) { return {text.begin(), text.end()}; }

/// The bytes before a checksum, and the checksum.
inline Bytes Sealed(Bytes bytes) {
  bytes.push_back(FrameChecksum(bytes));
  return bytes;
}

/// A frame with a body of characters; a read request without one.
inline Bytes Frame(std::uint8_t command, std::uint8_t index, std::string_view body = {}) {
  Bytes bytes = {kStart, command, index};
  bytes.insert(bytes.end(), body.begin(), body.end());
  bytes.push_back(kEnd);
  return Sealed(bytes);
}

/// What a Coder answers when it refuses.
inline Bytes Refusal(int number) {
  Bytes bytes = Frame(0, static_cast<std::uint8_t>(number));
  bytes.insert(bytes.begin(), kNak);
  return bytes;
}

inline Bytes operator+(Bytes left, const Bytes& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

inline const Bytes kAcknowledged = {kAck};

}  // namespace corvalis::coder
