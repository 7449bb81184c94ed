#pragma once

#include <chrono>

#include "platform/clock.h"
#include "platform/pump.h"

namespace corvalis::machine {

/// The computer's clock, and Qt's event loop as the pump.
class QtTime : public Clock, public Pump {
 public:
  [[nodiscard]] double Timer() const override;
  [[nodiscard]] double Steady() const override;
  [[nodiscard]] DateTime Now() const override;
  void RunPending() override;
  void RunUntil(double deadline) override;
};

/// Sleeps until something came and was run, or `time` is over.
void RunEventsFor(std::chrono::milliseconds time);

}  // namespace corvalis::machine
