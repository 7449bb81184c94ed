#include "coder/delimit.h"

#include <algorithm>

#include "coder/errors.h"
#include "link/frame.h"

namespace corvalis::coder {

namespace {

using State = Delimited::State;

constexpr std::size_t kOverhead = kFrameOverhead;
constexpr std::size_t kLongestFrame = kOverhead + 131;

// The length of the shortest frame, of whatever command, that ends with a fitting checksum; or 0.
std::size_t ProvenLength(std::span<const std::uint8_t> bytes) {
  const std::size_t most = std::min(bytes.size(), kLongestFrame);
  for (std::size_t length = kOverhead; length <= most; ++length) {
    if (bytes[length - 2] == kEnd && FrameChecksum(bytes.first(length)) == 0) return length;
  }
  return 0;
}

Delimited Proven(std::span<const std::uint8_t> bytes, bool hopeless, int error) {
  const std::size_t length = ProvenLength(bytes);
  if (length > 0) return {State::kWhole, length, error};
  if (hopeless) return {State::kBroken, bytes.size(), error};
  return {};
}

}  // namespace

Delimited Delimit(std::span<const std::uint8_t> bytes, bool pause) {
  if (bytes.size() <= kCommandOffset) return Proven(bytes, pause, kByteCountWrong);
  const Command* longest = nullptr;
  for (const Command& command : Commands()) {
    if (command.code != bytes[kCommandOffset]) continue;
    if (longest == nullptr) longest = &command;
    const std::size_t length = kOverhead + command.request.size();
    if (bytes.size() < length || bytes[length - 2] != kEnd) continue;
    if (FrameChecksum(bytes.first(length)) == 0) {
      const bool read = !command.Marked() || bytes[kIndexOffset] == 0;
      return {State::kWhole, length, 0, &command, read};
    }
    if (pause && bytes.size() == length) return {State::kWhole, length, kChecksumWrong};
  }
  if (longest == nullptr) {
    return Proven(bytes, pause || bytes.size() >= kLongestFrame, kCodeUnknown);
  }

  const std::size_t length = kOverhead + longest->body_bytes;
  if (bytes.size() < length) {
    if (!pause) return {};
    return Proven(bytes, true, kByteCountWrong);
  }
  if (bytes[length - 2] != kEnd) return {State::kBroken, length, kByteCountWrong};
  const bool good = FrameChecksum(bytes.first(length)) == 0;
  return {State::kWhole, length, good ? 0 : kChecksumWrong, longest};
}

}  // namespace corvalis::coder
