#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "air/group.h"
#include "air/reception/clock_time.h"
#include "air/reception/data_services.h"
#include "air/reception/frequency_sets.h"
#include "air/reception/group_counts.h"
#include "air/reception/item.h"
#include "air/reception/name_pieces.h"
#include "air/reception/other_network.h"
#include "air/reception/texts.h"
#include "air/words.h"

namespace corvalis::air {

/// What a radio knows of a station: plain data, as `Receiver` in air/receiver.h keeps it. Nothing
/// is heard in it that was not on the air, whatever was missing; each thing says when it was heard.
/// Sets over time have a `Hear`ing of their own: an entry that came once too seldom is there, but
/// not heard.
struct Reception {
  /// Counts once it came twice in a row. Another one that did is another station: then all of this
  /// begins anew.
  Item<std::uint16_t> pi;

  // In the block that every group has, and in 0A, 0B and 15B.
  Item<bool> tp;
  Item<int> pty;
  Item<bool> ta;
  Item<bool> music;  ///< M/S
  Item<bool> stereo;
  Item<bool> artificial_head;
  Item<bool> compressed;
  Item<bool> dynamic_pty;

  ServiceName ps;
  TextOfStation rt;
  Item<EightBytes> type_name;  ///< PTYN
  NamePieces type_name_building;
  bool type_name_flag = false;  ///< A/B of what builds up

  /// Counts once a second one agrees with it by the time that has passed; `last` is when the last
  /// that agreed came, and `value` what it said.
  Item<ClockTime> clock;
  Item<ItemNumber> item;  ///< PIN; day 0 is none
  Item<int> country;      ///< ECC
  Item<int> language;
  Item<bool> linked;      ///< LA, in 1A
  Item<Linkage> linkage;  ///< of the station itself, in 14A

  FrequencySets frequencies;
  std::vector<OtherNetwork> networks;  ///< at most `OtherNetwork::kMost`, as they came first

  std::array<Application, kGroupKinds> applications;  ///< by `GroupKind::Index` of their group
  TrafficMessages traffic;
  std::array<ChannelSet, 32> channels;
  std::array<InHousePage, 32> pages;

  GroupTraffic groups;
};

}  // namespace corvalis::air
