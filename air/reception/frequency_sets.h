#pragma once

#include <cstdint>
#include <vector>

#include "air/reception/heard_list.h"
#include "air/reception/item.h"

namespace corvalis::air {

/// A frequency as its codes have it.
struct HeardFrequency {
  std::uint8_t prefix = 0;  ///< 250 before LF and MF, 253 to 255 between steps of 100 kHz, or 0
  std::uint8_t code = 0;

  bool operator==(const HeardFrequency&) const = default;

  /// As air/af_codes.h has them: FM in MHz, LF and MF in kHz.
  [[nodiscard]] float Value() const;
  [[nodiscard]] int Kilohertz() const;
};

/// False for what is none: a filler, a count, a code that nobody assigned.
[[nodiscard]] bool IsFrequency(const HeardFrequency& frequency);

/// The neighbours of one transmitter, by method B.
struct TransmitterFrequencies {
  static constexpr std::size_t kMost = 32;
  using Set = HeardList<HeardFrequency, kMost, 2>;

  HeardFrequency tuned;
  std::uint32_t times = 0;  ///< that its list began; it counts from the second
  AirSeconds first = 0;
  AirSeconds last = 0;
  Set same{};      ///< pairs in rising order: the same programme
  Set regional{};  ///< pairs in falling order: a regional variant

  [[nodiscard]] bool IsHeard() const { return times >= 2; }
};

/// Alternative frequencies (AF), as sets over time. A station can use both methods in turn.
struct FrequencySets {
  static constexpr std::size_t kTransmitters = 128;

  HeardList<HeardFrequency, 64, 2> a;
  std::vector<TransmitterFrequencies> b;
};

}  // namespace corvalis::air
