#include "air/reception/clock_receiver.h"

#include <cmath>
#include <cstdlib>

namespace corvalis::air {

namespace {

// No place on earth is further from UTC.
constexpr int kFarthestHalfHours = 28;
constexpr AirSeconds kTolerance = 60;

bool Agree(const ClockTime& earlier, const Moment& then, const ClockTime& later,
           const Moment& now) {
  const AirSeconds told = 60.0 * static_cast<AirSeconds>((later.utc - earlier.utc).count());
  const AirSeconds groups = static_cast<AirSeconds>(now.group - then.group) * kGroupSeconds;
  return earlier.offset_half_hours == later.offset_half_hours &&
         (std::abs(told - (now.at - then.at)) <= kTolerance ||
          std::abs(told - groups) <= kTolerance);
}

}  // namespace

void ClockReceiver::Hear(const Group4A& group, const Moment& moment, Item<ClockTime>& clock) {
  const auto utc = group.Utc();
  if (!utc || std::abs(group.offset_half_hours) > kFarthestHalfHours) return;
  const ClockTime told{.utc = *utc, .offset_half_hours = group.offset_half_hours};
  const bool goes_on = clock.IsHeard() && Agree(clock.value, heard_, told, moment);
  if (goes_on || (clock.waits && Agree(clock.coming, coming_, told, moment))) {
    const AirSeconds since = clock.since;
    clock.Believe(told, moment.at);
    if (goes_on) clock.since = since;
    heard_ = moment;
    return;
  }
  clock.waits = true;
  clock.coming = told;
  clock.last = moment.at;
  coming_ = moment;
  if (clock.hearing == Hearing::kNot) clock.hearing = Hearing::kBeing;
}

}  // namespace corvalis::air
