#pragma once

#include <chrono>
#include <cstdint>

namespace corvalis::coder {

/// Since the first bit went out. It runs as fast as the air does, whatever a wall clock says.
using AirTime = std::chrono::nanoseconds;

/// When the n-th group begins, counted from 0: 104 bits each at 1187.5 bits a second. Exact to the
/// nanosecond however long the air has been going.
[[nodiscard]] constexpr AirTime GroupStart(std::uint64_t group) {
  constexpr std::uint64_t kGroups = 2375;  // take kSeconds
  constexpr std::uint64_t kSeconds = 208;
  constexpr std::uint64_t kNanoseconds = 1'000'000'000;
  return AirTime(group / kGroups * kSeconds * kNanoseconds +
                 group % kGroups * kSeconds * kNanoseconds / kGroups);
}

inline constexpr AirTime kGroupTime = GroupStart(1);

}  // namespace corvalis::coder
