#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "air/group.h"

namespace corvalis::air {

/// Makes the multiplex signal of groups that follow one another: the bits, 1187.5 a second, coded
/// by their differences, each a biphase symbol in the shape that the standard gives it, on a
/// suppressed carrier of 57 kHz. The signal begins and ends softly.
class Modulator {
 public:
  static constexpr int kSampleRate = 192'000;  ///< samples a second

  Modulator();

  /// Appends what the group adds to the signal: 16,815 samples or one more, so that no bit ever is
  /// early or late. A group is whole on the air when the next one or the end has been appended, as
  /// symbols overlap.
  void Add(const Group& group, std::vector<std::int16_t>& samples);
  /// Appends the rest of the last symbols.
  void End(std::vector<std::int16_t>& samples);

 private:
  void AddBit(bool bit, std::vector<std::int16_t>& samples);
  void Emit(std::size_t count, std::vector<std::int16_t>& samples);

  bool level_ = false;        // of the last symbol
  std::size_t fraction_ = 0;  // of a sample, at which the next symbol begins
  std::size_t carrier_ = 0;   // where the carrier stands in its period
  std::vector<float> ahead_;  // from the next sample on, what the symbols begun add up to
};

}  // namespace corvalis::air
