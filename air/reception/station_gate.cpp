#include "air/reception/station_gate.h"

namespace corvalis::air {

namespace {

// Of its PI in the first block and in the third.
bool ContradictsItself(const HeardGroup& group) {
  const auto& [first, second, third, fourth] = group.blocks;
  if (!first || !third || first == third) return false;
  const auto head = HeadOf(group);
  return head && head->kind.version_b;
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
  const bool spoilt = ContradictsItself(group);
  const auto pi = spoilt ? std::nullopt : PiOf(group);
  waiting_[count_++] = {.group = group, .at = at, .pi = pi, .foreign = spoilt};
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
    if (waiting_[i].pi && waiting_[i].pi != station_) waiting_[i].foreign = true;
  }
}

void StationGate::Break() {
  candidate_.reset();
  count_ = 0;
  lost_ = 0;
  through_ = 0;
}

}  // namespace corvalis::air
