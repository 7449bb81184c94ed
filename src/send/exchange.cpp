#include "send/exchange.h"

#include <algorithm>
#include <array>

#include "link/command_table.h"
#include "link/frame.h"

namespace corvalis::send {

namespace {

constexpr double kAnswerSeconds = 15;
constexpr double kQuietSeconds = 1;  // longer than any pause within what a Coder says

constexpr std::size_t kOverhead = kFrameOverhead;
constexpr std::size_t kShortIh = kIhShortLastIndex + 1;

bool IsCommand(std::uint8_t code) { return code >= 1 && code <= kCommands; }

std::size_t WholeSize(std::uint8_t code) { return FrameSize(static_cast<CommandCode>(code)); }

bool EndsAt(std::span<const std::uint8_t> bytes, std::size_t size) {
  return bytes.size() >= size && bytes[size - 2] == kEnd && FrameChecksum(bytes.first(size)) == 0;
}

// How long a frame of a command can be but for its whole size, ascending; 0: no more.
std::array<std::size_t, 3> ShorterSizes(std::uint8_t code) {
  switch (static_cast<CommandCode>(code)) {
    case CommandCode::kPin:
    case CommandCode::kPsnPage:
      return {kOverhead, kOverhead + 1};
    case CommandCode::kIh:
      return {kOverhead, kOverhead + 3, kShortIh};
    default:
      return {kOverhead};
  }
}

// Bytes of the Coder's answer to a frame, behind the ACK.
std::size_t AnswerSize(std::span<const std::uint8_t> frame) {
  const std::uint8_t code = frame[kCommandOffset];
  if (!IsCommand(code) || frame.size() >= WholeSize(code)) return 0;
  if (code == static_cast<int>(CommandCode::kIh) && frame.size() == kShortIh) {
    return frame[kIndexOffset] == 0 ? kShortIh : 0;
  }
  return WholeSize(code);
}

}  // namespace

bool IsEnq(std::span<const std::uint8_t> piece) { return piece.size() == 1 && piece[0] == kEnq; }

bool IsAddress(std::span<const std::uint8_t> piece) {
  return piece.size() == FrameSize(CommandCode::kAddress) && piece[0] == kStart &&
         piece[kCommandOffset] == static_cast<int>(CommandCode::kAddress);
}

std::size_t FirstPiece(std::span<const std::uint8_t> bytes) {
  if (bytes.empty()) return 0;
  if (bytes[0] == kEnq) return 1;
  if (bytes[0] != kStart) {
    const auto next =
        std::ranges::find_if(bytes, [](std::uint8_t b) { return b == kStart || b == kEnq; });
    return static_cast<std::size_t>(next - bytes.begin());
  }
  if (bytes.size() < kOverhead) return 0;
  const std::uint8_t code = bytes[kCommandOffset];
  if (!IsCommand(code)) {
    for (std::size_t size = kOverhead; size <= bytes.size(); ++size) {
      if (EndsAt(bytes, size)) return size;
    }
    return 0;
  }
  for (const std::size_t size : ShorterSizes(code)) {
    if (size > 0 && EndsAt(bytes, size)) return size;
  }
  return bytes.size() < WholeSize(code) ? 0 : WholeSize(code);
}

void Exchange::Begin(std::span<const std::uint8_t> piece, double now) {
  const bool frame = piece.size() >= kOverhead && piece[0] == kStart;
  *this = {};
  running_ = true;
  last_ = now;
  strange_ = !frame && !IsEnq(piece);
  if (frame) answer_size_ = AnswerSize(piece);
}

void Exchange::Take(std::span<const std::uint8_t> bytes, double now) {
  last_ = now;
  for (const std::uint8_t byte : bytes) {
    if (running_) TakeByte(byte);
  }
}

void Exchange::TakeByte(std::uint8_t byte) {
  if (strange_) return;
  if (due_bytes_ > 0) {
    if (refused_ && due_bytes_ == kOverhead - kIndexOffset) refusal_ = byte;
    if (--due_bytes_ > 0) return;
    return End(refused_ ? Outcome::kRefused : Outcome::kAcknowledged);
  }
  if (byte == kNak) {
    refused_ = true;
    due_bytes_ = kOverhead;
  } else if (byte == kAck) {
    due_bytes_ = answer_size_;
    if (answer_size_ == 0) End(Outcome::kAcknowledged);
  } else {
    strange_ = true;
  }
}

double Exchange::Due() const { return last_ + (strange_ ? kQuietSeconds : kAnswerSeconds); }

bool Exchange::Look(double now) {
  if (!running_ || now <= Due()) return false;
  End(Outcome::kUnknown);
  return true;
}

void Exchange::Break() {
  if (running_) End(Outcome::kUnknown);
}

void Exchange::End(Outcome outcome) {
  running_ = false;
  outcome_ = outcome;
}

}  // namespace corvalis::send
