#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace corvalis::coder {

/// By group as the group sequence counts them: 0 to 15 are 0A to 15A, 16 to 31 are 0B to 15B.
inline constexpr int kGroups = 32;
using Repetitions = std::array<int, kGroups>;

/// The groups of one cycle in the order in which they go out, each as often as its repetitions say
/// and spread evenly. No two neighbours are the same, the last and the first again included, unless
/// one group has more than half of all places; its places then stand together as little as they
/// can. Empty if nothing is repeated.
[[nodiscard]] std::vector<std::uint8_t> SpreadEvenly(const Repetitions& repetitions);

}  // namespace corvalis::coder
