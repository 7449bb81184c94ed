#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "air/block.h"
#include "air/group.h"

namespace corvalis::air {

inline constexpr std::size_t kGroupBits = kBlocks * kBlockBits;

/// The blocks of a group with their checkwords, as they go out one after the other.
[[nodiscard]] std::array<std::uint32_t, kBlocks> BlocksOf(const Group& group);
/// The same as text: 104 times "0" or "1".
[[nodiscard]] std::string BitText(const Group& group);

/// Finds the groups in a row of bits that may begin anywhere and have errors. It is in step once
/// three of four blocks that would follow one another are right, and looks anew when it has heard
/// next to nothing for some groups. A block that did not come over is missing; none is mended.
class GroupFinder {
 public:
  /// Takes the next bit; gives a group when its last one has come.
  [[nodiscard]] std::optional<HeardGroup> Take(bool bit);
  [[nodiscard]] bool InStep() const { return in_step_; }

 private:
  [[nodiscard]] std::optional<std::uint16_t> BlockAt(std::size_t position,
                                                     std::size_t blocks_ago) const;
  void LookForStep();

  std::uint32_t register_ = 0;                    // the last bits
  std::array<std::uint32_t, kGroupBits> past_{};  // the register behind each of the last bits
  std::size_t at_ = 0;                            // of the last one
  bool in_step_ = false;
  std::size_t bits_ = 0;   // of the present group, in step
  int silent_groups_ = 0;  // in a row
};

}  // namespace corvalis::air
