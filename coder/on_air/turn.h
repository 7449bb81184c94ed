#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

#include "coder/on_air/air_time.h"

namespace corvalis::coder {

/// Which of several things is on the air: each for its seconds, in the order of their numbers, then
/// the first again.
class Turn {
 public:
  /// Begins with the first thing again.
  void Restart() { number_ = kNone; }

  /// To be asked only where a change is allowed. `things` stand in the order of their `number`,
  /// have `seconds`, and there is at least one. They may be others than the last time: one that is
  /// gone is followed by the next that is there.
  template <typename Thing>
  [[nodiscard]] const Thing& At(const std::vector<Thing>& things, AirTime now) {
    auto thing = std::ranges::lower_bound(things, number_, {}, &Thing::number);
    const bool stays = thing != things.end() && thing->number == number_ && now < until_;
    if (!stays) {
      if (thing != things.end() && thing->number == number_) ++thing;
      if (thing == things.end()) thing = things.begin();
      number_ = thing->number;
      until_ = now + std::chrono::seconds(thing->seconds);
    }
    return *thing;
  }

 private:
  static constexpr int kNone = -1;

  int number_ = kNone;
  AirTime until_{};
};

}  // namespace corvalis::coder
