#pragma once

#include "air/groups.h"
#include "air/reception/clock_time.h"
#include "air/reception/item.h"
#include "air/reception/moment.h"

namespace corvalis::air {

/// Holds each time that is told against the one before: it counts if the time between them passed
/// on the air, by the caller's time or, where groups come faster than that, by their number.
class ClockReceiver {
 public:
  void Hear(const Group4A& group, const Moment& moment, Item<ClockTime>& clock);

 private:
  Moment heard_;   // when the value came
  Moment coming_;  // when the one that waits came
};

}  // namespace corvalis::air
