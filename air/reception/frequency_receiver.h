#pragma once

#include <cstdint>
#include <optional>

#include "air/reception/frequency_sets.h"
#include "air/reception/frequency_stream.h"
#include "air/reception/moment.h"
#include "air/words.h"

namespace corvalis::air {

/// Sorts the codes of 0A into lists. A list begins with its count; it is of method B if its first
/// frequency comes again in the first pair that is heard of it. Behind a gap a pair counts only
/// while the list cannot have ended.
class FrequencyReceiver {
 public:
  /// `codes` is empty where block 3 is missing.
  void Hear(const std::optional<BytePair>& codes, const Moment& moment, FrequencySets& sets);

 private:
  enum class Method : std::uint8_t { kNone, kOpen, kA, kB };

  void Begin(int count, std::uint8_t first, FrequencySets& sets, AirSeconds at);
  void TakePair(const BytePair& codes, FrequencySets& sets, AirSeconds at);
  void TakeA(std::uint8_t code, FrequencySets& sets, AirSeconds at);
  void TakeB(const BytePair& codes, FrequencySets& sets, AirSeconds at) const;

  Moment moment_;
  Method method_ = Method::kNone;
  int left_ = 0;       // codes of this list that surely follow, if whatever was lost were of it
  bool gap_ = false;   // something may have been lost since it began
  bool lost_ = false;  // and just before
  HeardFrequency first_;
  FrequencyStream stream_;
};

}  // namespace corvalis::air
