#pragma once

namespace corvalis {

/// One wait of the link, on the time of day. While a transfer screen stands it knows nothing of
/// midnight, nor of a clock that is put back: such a wait does not expire by itself, as the
/// operator can abort it. Without one, nobody can, so that a wait is over at the latest when its
/// seconds have passed on the steady clock.
class Wait {
 public:
  /// Takes the time. `seconds` may have a fraction.
  explicit Wait(double seconds);
  /// A wait that is over once the time of day is past `deadline`, in seconds since midnight.
  [[nodiscard]] static Wait Until(double deadline);

  /// Lets events run: at the first call those that are pending, at the next ones sleeping until
  /// something came or the time is over. Before the time is told to be over, what is pending is run
  /// once more: what has come while nobody looked is not late.
  void Pump();
  /// True if the last `Pump` found that the time is over.
  [[nodiscard]] bool Expired() const { return expired_; }
  /// True once the seconds have passed for anybody but the time of day, which midnight or a hand
  /// may have put back.
  [[nodiscard]] bool SecondsPassed() const;

 private:
  [[nodiscard]] bool TimeIsOver() const;
  [[nodiscard]] double WakeUp() const;

  double deadline_;         // in the time of day
  double steady_deadline_;  // on the steady clock
  bool first_ = true;
  bool expired_ = false;
};

}  // namespace corvalis
