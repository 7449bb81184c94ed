#pragma once

#include <cstdint>

#include "air/reception/item.h"

namespace corvalis::air {

/// 104 bits at 1187.5 bits a second.
inline constexpr AirSeconds kGroupSeconds = 104 / 1187.5;

/// When a group came, and how much of the air before it nobody knows. Two of them tell what may
/// have been missed in between.
struct Moment {
  AirSeconds at = 0;
  std::uint64_t group = 0;  ///< how many there were before
  std::uint64_t lost = 0;   ///< how many of those may have been of any kind

  [[nodiscard]] std::uint64_t LostSince(const Moment& earlier) const { return lost - earlier.lost; }
  /// By the groups, or by the caller's time if that is more.
  [[nodiscard]] AirSeconds SecondsSince(const Moment& earlier) const {
    const AirSeconds groups = static_cast<AirSeconds>(group - earlier.group) * kGroupSeconds;
    const AirSeconds told = at - earlier.at;
    return told > groups ? told : groups;
  }
};

}  // namespace corvalis::air
