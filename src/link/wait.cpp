#include "link/wait.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "busy/transfer_bracket.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr double kDay = 86400;
constexpr double kNever = std::numeric_limits<double>::infinity();

}  // namespace

Wait::Wait(double seconds)
    : deadline_(Machine().clock->Timer() + seconds),
      steady_deadline_(Machine().clock->Steady() + seconds) {}

Wait Wait::Until(double deadline) {
  Wait wait(deadline - Machine().clock->Timer());
  wait.deadline_ = deadline;
  return wait;
}

void Wait::Pump() {
  if (std::exchange(first_, false)) {
    Machine().pump->RunPending();
  } else {
    Machine().pump->RunUntil(WakeUp());
  }
  expired_ = TimeIsOver();
  if (expired_) Machine().pump->RunPending();
}

bool Wait::SecondsPassed() const { return Machine().clock->Steady() > steady_deadline_; }

bool Wait::TimeIsOver() const {
  return Machine().clock->Timer() > deadline_ || (!TransferScreenStands() && SecondsPassed());
}

// When to look at the clock again, on the steady one.
double Wait::WakeUp() const {
  const Clock& clock = *Machine().clock;
  // The time of day falls back to 0 before it gets beyond a day.
  const double by_day = deadline_ < kDay ? clock.Steady() + deadline_ - clock.Timer() : kNever;
  return SecondsPassed() ? by_day : std::min(by_day, steady_deadline_);
}

}  // namespace corvalis
