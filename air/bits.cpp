#include "air/bits.h"

#include <algorithm>

namespace corvalis::air {

namespace {

constexpr std::size_t kRightOfFour = 3;  // that chance does not bring about
// A group with one right block may be chance; so many of them in a row are out of step.
constexpr int kSilentGroups = 6;

// Which block of a group the offset is.
std::size_t PositionOf(Offset offset) {
  switch (offset) {
    case Offset::kA:
      return 0;
    case Offset::kB:
      return 1;
    case Offset::kC:
    case Offset::kC2:
      return 2;
    default:
      return 3;
  }
}

}  // namespace

std::array<std::uint32_t, kBlocks> BlocksOf(const Group& group) {
  const auto& [first, second, third, fourth] = group.blocks;
  const bool version_b = HeadOf(Heard(group))->kind.version_b;
  return {BlockOf(first, Offset::kA), BlockOf(second, Offset::kB),
          BlockOf(third, version_b ? Offset::kC2 : Offset::kC), BlockOf(fourth, Offset::kD)};
}

std::string BitText(const Group& group) {
  std::string text;
  text.reserve(kGroupBits);
  for (const std::uint32_t block : BlocksOf(group)) {
    for (int bit = kBlockBits - 1; bit >= 0; --bit) text += (block >> bit & 1U) != 0 ? '1' : '0';
  }
  return text;
}

std::optional<HeardGroup> GroupFinder::Take(bool bit) {
  register_ = register_ << 1 | (bit ? 1U : 0U);
  at_ = at_ + 1 < past_.size() ? at_ + 1 : 0;
  past_[at_] = register_;
  if (in_step_) {
    ++bits_;
  } else {
    LookForStep();
  }
  if (!in_step_ || bits_ < kGroupBits) return std::nullopt;

  bits_ = 0;
  HeardGroup group;
  for (std::size_t i = 0; i < kBlocks; ++i) group.blocks[i] = BlockAt(i, kBlocks - 1 - i);
  const auto right = std::ranges::count_if(group.blocks, [](const auto& block) { return !!block; });
  silent_groups_ = right > 1 ? 0 : silent_groups_ + 1;
  in_step_ = silent_groups_ < kSilentGroups;
  return group;
}

// The last block, or one before it, if it is right and the one of this position in a group.
std::optional<std::uint16_t> GroupFinder::BlockAt(std::size_t position,
                                                  std::size_t blocks_ago) const {
  const std::size_t back = blocks_ago * kBlockBits;
  const std::uint32_t block = past_[(at_ + past_.size() - back) % past_.size()];
  const auto offset = OffsetOf(block);
  if (!offset || PositionOf(*offset) != position) return std::nullopt;
  return WordIn(block);
}

void GroupFinder::LookForStep() {
  const auto offset = OffsetOf(register_);
  if (!offset) return;
  const std::size_t position = PositionOf(*offset);
  std::size_t right = 0;
  for (std::size_t ago = 0; ago < kBlocks; ++ago) {
    if (BlockAt((position + kBlocks - ago) % kBlocks, ago)) ++right;
  }
  if (right < kRightOfFour) return;
  in_step_ = true;
  bits_ = (position + 1) * kBlockBits;
}

}  // namespace corvalis::air
