#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "air/reception/group_counts.h"

namespace corvalis::air {

/// Counts groups, second by second for the last minute.
class GroupCounter {
 public:
  /// `kind` is the group's, or `kGroupKinds` if it is not known. The time does not go back.
  void Count(std::size_t kind, std::size_t missing_blocks, AirSeconds at, GroupTraffic& traffic);
  void Pass(AirSeconds now, GroupTraffic& traffic);

 private:
  static constexpr std::int64_t kSeconds = 60;

  [[nodiscard]] GroupCounts& Of(std::int64_t second);

  bool started_ = false;
  std::int64_t first_ = 0;   // second that anything came in
  std::int64_t second_ = 0;  // that it is
  std::array<GroupCounts, kSeconds> seconds_;
};

}  // namespace corvalis::air
