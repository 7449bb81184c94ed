#pragma once

#include <array>
#include <cstdint>

#include "air/group.h"
#include "air/reception/item.h"

namespace corvalis::air {

/// How many groups came, by kind, and how many blocks did not.
struct GroupCounts {
  std::array<std::uint64_t, kGroupKinds> kinds{};  ///< by `GroupKind::Index`
  std::uint64_t unknown = 0;                       ///< groups whose block 2 is missing
  std::uint64_t groups = 0;                        ///< all of them
  std::uint64_t missing_blocks = 0;

  /// 0 to 100; 0 of nothing.
  [[nodiscard]] double MissingPercent() const {
    return groups == 0 ? 0
                       : 100.0 * static_cast<double>(missing_blocks) /
                             static_cast<double>(groups * kBlocks);
  }
  /// Of a kind, of the groups whose kind is known, 0 to 1.
  [[nodiscard]] double Share(int index) const {
    return groups == unknown ? 0
                             : static_cast<double>(kinds.at(static_cast<std::size_t>(index))) /
                                   static_cast<double>(groups - unknown);
  }

  GroupCounts& operator+=(const GroupCounts& other);
  GroupCounts& operator-=(const GroupCounts& other);
};

/// Since the station was first heard, and of the last minute.
struct GroupTraffic {
  GroupCounts all;
  GroupCounts last_minute;
  double groups_a_second = 0;  ///< of the last ten seconds
};

}  // namespace corvalis::air
