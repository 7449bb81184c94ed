#pragma once

#include <cstdint>
#include <optional>

#include "air/af_codes.h"
#include "air/reception/frequency_sets.h"

namespace corvalis::air {

/// Codes of frequencies, one after the other: some need two.
class FrequencyStream {
 public:
  /// The frequency that ends with this code, if any does.
  std::optional<HeardFrequency> Take(std::uint8_t code) {
    if (prefix_ == 0 && IsAfPrefix(code)) {
      prefix_ = code;
      return std::nullopt;
    }
    const HeardFrequency frequency{.prefix = prefix_, .code = code};
    prefix_ = 0;
    if (!IsFrequency(frequency)) return std::nullopt;
    return frequency;
  }
  [[nodiscard]] bool IsInFrequency() const { return prefix_ != 0; }

 private:
  std::uint8_t prefix_ = 0;
};

/// How many frequencies a list of which this is the first code says it has; nullopt if it is no
/// count.
[[nodiscard]] inline std::optional<int> CountOf(std::uint8_t code) {
  constexpr int kMost = kAfEntries;
  const int count = code - kAfCount;
  if (count < 0 || count > kMost) return std::nullopt;
  return count;
}

}  // namespace corvalis::air
