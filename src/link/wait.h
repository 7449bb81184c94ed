#pragma once

namespace corvalis {

/// One wait of the link, on the seconds since midnight. It knows nothing of midnight: a wait that
/// runs into the next day does not expire by itself.
class Wait {
 public:
  /// Takes the time. `seconds` may have a fraction.
  explicit Wait(double seconds);
  /// A wait that is over once the clock is past `deadline`, in seconds since midnight.
  [[nodiscard]] static Wait Until(double deadline);

  /// Lets events run: at the first call those that are pending, at the next ones sleeping until
  /// something came or the time is over.
  void Pump();
  /// True once the clock is past the deadline: the start plus the seconds given.
  [[nodiscard]] bool Expired() const;
  /// True once the time is over for anybody but the clock, which has fallen back at midnight.
  [[nodiscard]] bool OverButForMidnight() const;

 private:
  double start_;
  double deadline_;
  bool first_ = true;
};

}  // namespace corvalis
