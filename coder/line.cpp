#include "coder/line.h"

#include <algorithm>

namespace corvalis::coder {

namespace {

constexpr double kMillisecond = 1e-3;
constexpr std::uint8_t kGarble = 0x40;

}  // namespace

Line::Line(Coder& coder, Faults faults) : coder_(coder), faults_(faults) {}

std::vector<Line::Answer> Line::Take(std::span<const std::uint8_t> bytes) {
  std::vector<Answer> out;
  for (const std::uint8_t byte : bytes) {
    if (unplugged_) break;
    Deliver(coder_.TakeApart({&byte, 1}), out);
  }
  return out;
}

std::vector<Line::Answer> Line::LinePause() {
  std::vector<Answer> out;
  if (!unplugged_) Deliver(coder_.LinePauseApart(), out);
  return out;
}

void Line::Replug() {
  static_cast<void>(coder_.LinePause());
  faults_.unplug_after = 0;
  unplugged_ = false;
}

void Line::Deliver(const std::vector<Bytes>& answers, std::vector<Answer>& out) {
  for (Bytes bytes : answers) {
    ++answers_;
    if (answers_ == faults_.unplug_after) unplugged_ = true;
    if (unplugged_ || faults_.silent) continue;
    if (faults_.garble_every > 0 && answers_ % faults_.garble_every == 0) {
      bytes[bytes.size() / 2] ^= kGarble;
    }
    if (faults_.cut_after > 0) {
      bytes.resize(std::min(bytes.size(), static_cast<std::size_t>(faults_.cut_after)));
    }
    out.push_back({faults_.late_ms * kMillisecond, std::move(bytes)});
  }
}

}  // namespace corvalis::coder
