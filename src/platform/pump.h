#pragma once

namespace corvalis {

/// Lets the port's events, the operator's events and the timers run. There is one thread: nothing
/// of these runs outside a pump.
class Pump {
 public:
  virtual ~Pump() = default;

  /// Runs what is pending and returns at once.
  virtual void RunPending() = 0;

  /// Sleeps until something came and was run, or until `Clock::Steady()` is past `deadline`. A
  /// deadline of infinity is never reached: only an event ends such a call.
  virtual void RunUntil(double deadline) = 0;
};

}  // namespace corvalis
