#include "air/reception/group_counter.h"

#include <algorithm>
#include <cmath>

namespace corvalis::air {

namespace {

constexpr std::int64_t kRateSeconds = 10;

// Whatever the caller's time is.
std::int64_t SecondOf(AirSeconds at) {
  constexpr AirSeconds kFarthest = 1e15;
  return static_cast<std::int64_t>(std::floor(std::clamp(at, -kFarthest, kFarthest)));
}

void Add(GroupCounts& counts, std::size_t kind, std::size_t missing_blocks) {
  ++counts.groups;
  counts.missing_blocks += missing_blocks;
  ++(kind < counts.kinds.size() ? counts.kinds[kind] : counts.unknown);
}

}  // namespace

GroupCounts& GroupCounts::operator+=(const GroupCounts& other) {
  for (std::size_t i = 0; i < kinds.size(); ++i) kinds[i] += other.kinds[i];
  unknown += other.unknown;
  groups += other.groups;
  missing_blocks += other.missing_blocks;
  return *this;
}

GroupCounts& GroupCounts::operator-=(const GroupCounts& other) {
  for (std::size_t i = 0; i < kinds.size(); ++i) kinds[i] -= other.kinds[i];
  unknown -= other.unknown;
  groups -= other.groups;
  missing_blocks -= other.missing_blocks;
  return *this;
}

GroupCounts& GroupCounter::Of(std::int64_t second) {
  return seconds_[static_cast<std::size_t>((second % kSeconds + kSeconds) % kSeconds)];
}

void GroupCounter::Count(std::size_t kind, std::size_t missing_blocks, AirSeconds at,
                         GroupTraffic& traffic) {
  Pass(at, traffic);
  Add(traffic.all, kind, missing_blocks);
  Add(traffic.last_minute, kind, missing_blocks);
  Add(Of(second_), kind, missing_blocks);
}

void GroupCounter::Pass(AirSeconds now, GroupTraffic& traffic) {
  const std::int64_t second = SecondOf(now);
  if (!started_) {
    started_ = true;
    first_ = second_ = second;
  }
  if (second <= second_) return;
  for (std::int64_t next = std::max(second_ + 1, second - kSeconds + 1); next <= second; ++next) {
    traffic.last_minute -= Of(next);
    Of(next) = {};
  }
  second_ = second;
  const std::int64_t seconds = std::min(kRateSeconds, second - first_);
  std::uint64_t groups = 0;
  for (std::int64_t i = 1; i <= seconds; ++i) groups += Of(second - i).groups;
  traffic.groups_a_second = static_cast<double>(groups) / static_cast<double>(seconds);
}

}  // namespace corvalis::air
