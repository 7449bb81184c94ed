#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "air/reception/texts.h"
#include "air/words.h"

namespace corvalis::air {

/// A name of eight characters that comes in four pairs, with long breaks and nothing that tells one
/// name from the next. It counts once each pair came again, the same, after all had come: so a name
/// that changed in the meantime is never mixed with the one before.
class NamePieces {
 public:
  static constexpr std::size_t kPairs = 4;

  /// True if the name counts now.
  bool Hear(std::size_t pair, const BytePair& characters) {
    const unsigned bit = 1U << pair;
    const bool known = (came_ & bit) != 0;
    if (known && pairs_.at(pair) != characters) *this = {};
    if (came_ == kAll) {
      again_ |= bit;
    } else {
      pairs_.at(pair) = characters;
      came_ |= bit;
      again_ = 0;
    }
    return again_ == kAll;
  }

  /// Blanks for what has not come.
  [[nodiscard]] EightBytes Bytes() const {
    EightBytes bytes;
    bytes.fill(' ');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if ((came_ >> i / 2 & 1U) != 0) bytes[i] = pairs_[i / 2][i % 2];
    }
    return bytes;
  }
  /// Bit p for characters 2p and 2p + 1.
  [[nodiscard]] unsigned Came() const { return came_; }

 private:
  static constexpr unsigned kAll = (1U << kPairs) - 1;

  std::array<BytePair, kPairs> pairs_{};
  unsigned came_ = 0;
  unsigned again_ = 0;  // since all had come
};

}  // namespace corvalis::air
