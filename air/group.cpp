#include "air/group.h"

#include <algorithm>

#include "air/layout.h"

namespace corvalis::air {

HeardGroup Heard(const Group& group) {
  HeardGroup heard;
  std::ranges::copy(group.blocks, heard.blocks.begin());
  return heard;
}

std::optional<HeardHead> HeadOf(const HeardGroup& group) {
  if (!group.blocks[1]) return std::nullopt;
  const auto second = FromWord<SecondBlock>(*group.blocks[1]);
  return HeardHead{.pi = PiOf(group), .kind = second.kind, .tp = second.tp, .pty = second.pty};
}

std::optional<std::uint16_t> PiOf(const HeardGroup& group) {
  const auto& [first, second, third, fourth] = group.blocks;
  if (first || !second) return first;
  return FromWord<SecondBlock>(*second).kind.version_b ? third : std::nullopt;
}

}  // namespace corvalis::air
