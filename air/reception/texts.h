#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "air/reception/heard_list.h"
#include "air/reception/item.h"

namespace corvalis::air {

/// Texts are the bytes as they came; `RadioText` in air/characters.h has what a radio shows of
/// them.

/// Eight characters.
using EightBytes = std::array<std::uint8_t, 8>;

/// The name of the station (PS), and those it took turns with.
struct ServiceName {
  /// Heard once four segments came in one pass, in order and without a gap.
  Item<EightBytes> now;
  /// Building up: what of this pass has come, a blank for what has not.
  EightBytes building{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
  std::uint8_t segments = 0;  ///< of `building` that came: bit s for characters 2s and 2s + 1
  HeardList<EightBytes, 256, 1> names;
};

/// A radio text that came whole: without its 0D, with the blanks that fill it.
struct WholeText {
  std::vector<std::uint8_t> bytes;
  bool flag = false;  ///< A/B, true is B
  AirSeconds since = 0;

  bool operator==(const WholeText&) const = default;
};

/// The radio text (RT), and those it took turns with.
struct TextOfStation {
  static constexpr std::size_t kRemembered = 8;

  /// Heard once every segment up to the 0D, or each there is, came under one A/B flag. The flag
  /// turning forgets it: it is being heard then, and `value` is what it was before.
  Item<std::vector<std::uint8_t>> now;
  std::array<std::uint8_t, 64> building{};  ///< blanks where nothing came
  std::uint32_t pairs = 0;                  ///< of `building` that came: bit p for 2p and 2p + 1
  bool flag = false;                        ///< A/B of `building`
  std::deque<WholeText> remembered;         ///< the last whole ones, the latest in front
  HeardList<std::vector<std::uint8_t>, 128, 1> texts;
};

}  // namespace corvalis::air
