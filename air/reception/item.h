#pragma once

#include <cstdint>

namespace corvalis::air {

/// Seconds, on whatever scale the caller counts them; every group comes with its own. They do not
/// go back.
using AirSeconds = double;

enum class Hearing : std::uint8_t {
  kNot,    ///< nothing of it came
  kBeing,  ///< some of it came, or it came once and waits to come again; nothing to rely on
  kHeard
};

/// One thing that a radio knows. What has no check of its own counts once it came twice in a row
/// the same; then another value has to do so too before it takes its place.
template <typename T>
struct Item {
  Hearing hearing = Hearing::kNot;
  T value{};             ///< what counts, once heard
  T coming{};            ///< another value that came once, if `waits`
  bool waits = false;    ///< for `coming` to come again
  AirSeconds since = 0;  ///< `value` has counted
  AirSeconds last = 0;   ///< `value` or `coming` came

  [[nodiscard]] bool IsHeard() const { return hearing == Hearing::kHeard; }

  /// It came once.
  void Hear(const T& heard, AirSeconds at) {
    last = at;
    if (IsHeard() && heard == value) {
      waits = false;
    } else if (waits && heard == coming) {
      Believe(heard, at);
    } else {
      coming = heard;
      waits = true;
      if (hearing == Hearing::kNot) hearing = Hearing::kBeing;
    }
  }

  /// It counts at once, as something else vouches for it.
  void Believe(const T& heard, AirSeconds at) {
    last = at;
    waits = false;
    if (IsHeard() && heard == value) return;
    hearing = Hearing::kHeard;
    value = heard;
    since = at;
  }
};

}  // namespace corvalis::air
