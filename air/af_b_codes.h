#pragma once

#include <array>

#include "air/af_codes.h"

namespace corvalis::air {

/// The last frequency of a list of method B, MHz; the first is `kMinFreq`.
inline constexpr float kMaxFreqB = 107.9F;

/// The frequencies of one transmitter, by method B: its own and those of its neighbours, in MHz, 0
/// for none. Screens and the Coder know 12 neighbours; the last is what the file may bring beyond.
struct AfBFrequencies {
  static constexpr int kShown = 12;

  float main = 0;
  std::array<float, kShown + 1> others{};
};

/// The Coder's code bytes: the main frequency, and pairs of it and another in rising order.
/// Without a main frequency, or without any other, the list goes out as empty.
[[nodiscard]] AfCodes AfBCodes(const AfBFrequencies& list);

/// The list that the bytes stand for. Pairs without the main frequency are skipped.
[[nodiscard]] AfBFrequencies AfBFrequenciesOf(const AfCodes& codes);

}  // namespace corvalis::air
