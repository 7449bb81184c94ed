#include "link/wait.h"

#include <utility>

#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr double kDay = 86400;

}  // namespace

Wait::Wait(double seconds) : start_(Machine().clock->Timer()), deadline_(start_ + seconds) {}

Wait Wait::Until(double deadline) {
  Wait wait(0);
  wait.deadline_ = deadline;
  return wait;
}

void Wait::Pump() {
  if (std::exchange(first_, false)) {
    Machine().pump->RunPending();
  } else {
    Machine().pump->RunUntil(deadline_);
  }
}

bool Wait::Expired() const { return Machine().clock->Timer() > deadline_; }

bool Wait::OverButForMidnight() const {
  const double now = Machine().clock->Timer();
  return now < start_ && now + kDay > deadline_;
}

}  // namespace corvalis
