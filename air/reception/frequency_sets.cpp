#include "air/reception/frequency_sets.h"

#include <cmath>

#include "air/af_codes.h"

namespace corvalis::air {

float HeardFrequency::Value() const {
  AfCodes codes;
  codes.fill(kAfFiller);
  codes[1] = prefix == 0 ? code : prefix;
  codes[2] = prefix == 0 ? kAfFiller : code;
  return AfAFrequencies(codes)[0];
}

int HeardFrequency::Kilohertz() const {
  const float value = Value();
  return static_cast<int>(std::lround(IsFm(value) ? double{value} * 1000 : double{value}));
}

bool IsFrequency(const HeardFrequency& frequency) {
  const auto& [prefix, code] = frequency;
  if (prefix == kLfOrMfNext) return code >= 1 && code <= kLastAmCode;
  return (code >= 1 || prefix != 0) && code <= kLastFmCode;
}

}  // namespace corvalis::air
