#include "air/af_b_codes.h"

#include <cmath>
#include <cstddef>

namespace corvalis::air {

namespace {

constexpr std::size_t kFirstPair = 2;

std::uint8_t Code(float value) {
  return static_cast<std::uint8_t>(std::floor(double{value} * 10 + 0.0001) - 875);
}

}  // namespace

AfCodes AfBCodes(const AfBFrequencies& list) {
  AfCodes codes;
  codes.fill(kAfFiller);
  codes[0] = kAfCount;
  if (!IsFm(list.main)) return codes;
  const std::uint8_t main = Code(list.main);
  std::size_t at = kFirstPair;
  for (const float other : list.others) {
    if (at >= codes.size()) break;
    if (!IsFm(other)) continue;
    const bool above = other >= list.main;
    codes[at++] = above ? main : Code(other);
    codes[at++] = above ? Code(other) : main;
  }
  if (at == kFirstPair) return codes;
  codes[0] = static_cast<std::uint8_t>(kAfCount + at - 1);
  codes[1] = main;
  return codes;
}

AfBFrequencies AfBFrequenciesOf(const AfCodes& codes) {
  AfBFrequencies list;
  const std::uint8_t main = codes[1];
  if (main == kAfFiller) return list;
  list.main = AfCodeFreq(main);
  std::size_t found = 0;
  for (std::size_t at = kFirstPair; at < codes.size(); at += 2) {
    const std::uint8_t first = codes[at];
    const std::uint8_t second = codes[at + 1];
    if (first == main) {
      list.others[found++] = AfCodeFreq(second);
    } else if (second == main) {
      list.others[found++] = AfCodeFreq(first);
    } else if (first == kAfFiller && second == kAfFiller) {
      break;
    }
  }
  return list;
}

}  // namespace corvalis::air
