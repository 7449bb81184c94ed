#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "air/reception/moment.h"
#include "air/reception/texts.h"
#include "air/words.h"

namespace corvalis::air {

/// Puts radio texts together, of one kind of group. Segments of one text may come in several
/// passes. They are let go where two texts could be mixed:
/// - the A/B flag turned;
/// - a segment is not what it was;
/// - so much was lost that the flag may have turned twice: the rest of this text, all of another
///   that was on for a second, and the beginning of a third;
/// - a segment was left out and nothing was lost: who delivers the groups hides what it lost.
///
/// A station that ends its texts with nothing is heard too: by two passes that are the same, with
/// nothing lost from the beginning of the first to the end of the second.
class TextReceiver {
 public:
  /// 2 for 2A, 1 for 2B.
  explicit TextReceiver(std::size_t pairs_in_segment) : in_segment_(pairs_in_segment) { Forget(); }

  void Hear(bool flag, std::size_t segment, std::span<const std::optional<BytePair>> characters,
            const Moment& moment, TextOfStation& text);

 private:
  static constexpr std::size_t kSegments = 16;
  using Bytes = std::array<std::uint8_t, 64>;

  [[nodiscard]] bool IsUncertain(std::size_t segment, const Moment& moment) const;
  [[nodiscard]] bool Contradicts(std::size_t first_pair,
                                 std::span<const std::optional<BytePair>> characters);
  [[nodiscard]] Bytes::iterator CharactersOf(std::size_t pair);
  void Forget();
  void FollowPass(std::size_t segment, bool complete, bool lost);
  void EndPass(TextOfStation& text, AirSeconds at);
  void Whole(std::size_t length, TextOfStation& text, AirSeconds at);

  std::size_t in_segment_;
  bool started_ = false;
  bool flag_ = false;
  Bytes bytes_{};
  std::uint32_t pairs_ = 0;
  std::size_t segments_ = 0;  // that this text has at least
  std::size_t last_ = 0;      // segment that came
  Moment moment_;             // of it
  std::optional<WholeText> told_;

  // The pass that nothing was lost of: its segments so far, 0 if it is none; and the one before.
  std::size_t pass_ = 0;
  std::vector<std::uint8_t> pass_before_;
};

}  // namespace corvalis::air
