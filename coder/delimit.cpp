#include "coder/delimit.h"

#include <algorithm>

#include "coder/commands.h"
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
  const Command* command = FindCommand(bytes[kCommandOffset]);
  if (command == nullptr) {
    return Proven(bytes, pause || bytes.size() >= kLongestFrame, kCodeUnknown);
  }

  const std::size_t request = kOverhead + command->request_bytes;
  if (bytes.size() >= request && bytes[request - 2] == kEnd) {
    const bool good = FrameChecksum(bytes.first(request)) == 0;
    // A raw body may begin with an end byte; then only the checksum, or the silence, tells.
    if (good || command->EndTellsRequest() || (pause && bytes.size() == request)) {
      return {State::kWhole, request, good ? 0 : kChecksumWrong, true};
    }
  }

  const std::size_t length = kOverhead + command->body_bytes;
  if (bytes.size() < length) {
    if (!pause) return {};
    return Proven(bytes, true, kByteCountWrong);
  }
  if (bytes[length - 2] != kEnd) return {State::kBroken, length, kByteCountWrong};
  return {State::kWhole, length, FrameChecksum(bytes.first(length)) == 0 ? 0 : kChecksumWrong};
}

}  // namespace corvalis::coder
