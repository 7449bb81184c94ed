#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "air/group.h"
#include "air/groups.h"
#include "air/reception/heard_list.h"
#include "air/reception/item.h"
#include "air/words.h"

namespace corvalis::air {

/// What a kind of group is used for (3A), and what was said of it last.
struct Application {
  Item<std::uint16_t> id;  ///< AID
  Item<std::uint16_t> message;
};

/// Traffic messages (TMC), as far as single groups have them. They mean something only if `id` of
/// the application in 8A says so.
struct TrafficMessages {
  Item<TrafficTable> table;
  Item<TrafficService> service;
  HeardList<Group8A, 128, 2> messages;
};

/// What came in one 5A, or in the upper two bytes in one 5B.
struct ChannelBytes {
  std::array<std::uint8_t, 4> bytes{};
  std::uint8_t count = 4;

  bool operator==(const ChannelBytes&) const = default;
};
using ChannelSet = HeardList<ChannelBytes, 128, 2>;

/// A page in house (6A).
struct InHousePage {
  static constexpr std::size_t kMost = 4096;  ///< bytes; of a longer one nothing is heard

  /// Heard once every group of it came, from the one behind another page's, or behind one with a
  /// 0D, to the next. A text without 0D that came several times over is told once.
  Item<std::string> text;
  std::string building;  ///< what came since
};

}  // namespace corvalis::air
