#include "air/reception/station_gate.h"

namespace corvalis::air {

namespace {

// None if two blocks that say it contradict each other.
std::optional<std::uint16_t> IdentityOf(const HeardGroup& group) {
  const auto& [first, second, third, fourth] = group.blocks;
  if (first && third && first != third) {
    const auto head = HeadOf(group);
    if (head && head->kind.version_b) return std::nullopt;
  }
  return PiOf(group);
}

}  // namespace

bool StationGate::Take(const HeardGroup& group, AirSeconds at) {
  if (through_ != 0) {
    count_ = 0;
    lost_ = 0;
  }
  through_ = 0;
  if (count_ == kMost) {
    lost_ += count_;
    count_ = 0;
    candidate_at_ = 0;
  }
  const auto pi = IdentityOf(group);
  waiting_[count_++] = {.group = group, .at = at, .pi = pi};
  if (!pi) return false;
  if (pi == station_) {
    candidate_.reset();
    LetThrough(0);
    return false;
  }
  if (pi == candidate_) {
    const bool another = station_.has_value();
    station_ = pi;
    candidate_.reset();
    LetThrough(candidate_at_);
    return another;
  }
  candidate_ = pi;
  candidate_at_ = count_ - 1;
  return false;
}

void StationGate::LetThrough(std::size_t from) {
  from_ = from;
  through_ = count_ - from;
  for (std::size_t i = from; i < count_; ++i) {
    waiting_[i].foreign = waiting_[i].pi && waiting_[i].pi != station_;
  }
}

void StationGate::Break() {
  candidate_.reset();
  count_ = 0;
  lost_ = 0;
  through_ = 0;
}

}  // namespace corvalis::air
