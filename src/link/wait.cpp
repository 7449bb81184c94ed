#include "link/wait.h"

#include <utility>

#include "platform/platform.h"

namespace corvalis {

Wait::Wait(double seconds) : deadline_(Machine().clock->Timer() + seconds) {}

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

}  // namespace corvalis
