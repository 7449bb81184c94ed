#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/air_time.h"
#include "coder/on_air/channels.h"
#include "coder/on_air/clock.h"
#include "coder/on_air/frequencies.h"
#include "coder/on_air/group_cycle.h"
#include "coder/on_air/names.h"
#include "coder/on_air/networks.h"
#include "coder/on_air/pages.h"
#include "coder/on_air/plan.h"
#include "coder/on_air/programme_items.h"
#include "coder/on_air/texts.h"
#include "coder/on_air/traffic.h"
#include "coder/on_air/type_name.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// What a Coder radiates: which group goes next, and what is in it, from its memory at that moment
/// and the time. A change of the memory is on the air with the next group that carries it; texts
/// are sent to their end first.
///
/// The groups of the sequence take turns by their repetitions. One that has nothing to say passes
/// its place to 0A, which always has; with nothing enabled every group is 0A. Beside the turns, a
/// 4A goes out where a minute ends, and 14Bs where a traffic announcement of another network begins
/// or ends.
///
/// The plan of pages works here, as it needs a clock: it makes its page the active one in the
/// Coder's memory.
class OnAir {
 public:
  /// `coder` has to outlive it.
  explicit OnAir(Coder& coder);

  /// The group that begins at `now`. The time never goes back from call to call; `GroupStart` has
  /// it.
  [[nodiscard]] air::Group Next(AirTime now);

 private:
  void Follow(AirTime now);
  void FollowValues();
  void FollowTime(AirTime now);
  void FollowCycle();
  [[nodiscard]] bool HasSomethingToSay(int group) const;
  [[nodiscard]] int NextInCycle();
  [[nodiscard]] air::Switches SwitchesAt(int segment) const;
  [[nodiscard]] air::Group Make(int group, AirTime now);
  template <typename Body>
  [[nodiscard]] air::Group Build(const Body& body) const {
    return air::Build(head_, body);
  }

  Coder& coder_;
  std::optional<std::uint64_t> changes_;  // of the memory, seen last

  Clock clock_;
  std::optional<LocalMinute> minute_;  // that it is, if there is a time
  std::optional<LocalMinute> told_;    // by the last 4A, or would have been
  Plan plan_;
  ProgrammeItems items_;
  air::ItemNumber item_;  // that is on

  air::Head head_;
  bool ta_ = false;
  bool music_ = false;
  int di_ = 0;
  int ecc_ = 0;
  int language_ = 0;
  bool linkage_ = false;
  air::TrafficTable traffic_table_;
  air::TrafficService traffic_service_;
  int switch_segment_ = 0;      // of 15B
  bool tells_country_ = false;  // the last 1A did
  bool tells_table_ = false;    // the last 3A did

  Watch enable_watch_{{kEnable}};
  Repetitions enabled_{};
  bool clock_enabled_ = false;
  Repetitions in_cycle_{};  // with the places passed to 0A
  std::vector<std::uint8_t> cycle_;
  std::size_t place_ = 0;

  NameRotation names_;
  FrequencyRotation frequencies_;
  TextRotation texts_;
  TypeName type_name_;
  ChannelRotation channels_;
  PageRotation pages_;
  TrafficRotation traffic_;
  NetworkRotation networks_;
};

}  // namespace corvalis::coder
