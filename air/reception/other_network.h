#pragma once

#include <cstdint>

#include "air/reception/frequency_sets.h"
#include "air/reception/heard_list.h"
#include "air/reception/item.h"
#include "air/reception/name_pieces.h"
#include "air/reception/texts.h"
#include "air/words.h"

namespace corvalis::air {

/// A frequency of this network and the one of the other that goes with it.
struct FrequencyPair {
  HeardFrequency own;
  HeardFrequency other;

  bool operator==(const FrequencyPair&) const = default;
};

/// What is told of another network (EON).
struct OtherNetwork {
  static constexpr std::size_t kMost = 64;  ///< networks of one station

  std::uint16_t pi = 0;
  std::uint32_t times = 0;  ///< that it was told of; it counts from the second
  AirSeconds first = 0;
  AirSeconds last = 0;

  Item<EightBytes> name;
  NamePieces building;  ///< of the name
  Item<bool> tp;
  Item<bool> ta;  ///< told in variant 13 and in 14B
  Item<int> pty;
  Item<ItemNumber> item;
  Item<Linkage> linkage;
  HeardList<HeardFrequency, 64, 2> frequencies;
  HeardList<FrequencyPair, 64, 2> pairs;

  [[nodiscard]] bool IsHeard() const { return times >= 2; }
};

}  // namespace corvalis::air
