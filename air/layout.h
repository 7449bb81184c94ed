#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>

#include "air/group.h"
#include "air/words.h"

namespace corvalis::air {

/// How fields lie in blocks. Each layout is told once, as a function `Lay` that names its fields to
/// a writer or a reader: bit 0 is the last one to go out.

// What of a group is its own is told as one row of bits: the last five of block 2, block 3,
// block 4.
inline constexpr int kOwnBits = 5;
inline constexpr int kOwn = 32;
inline constexpr int kThird = 16;
inline constexpr int kFourth = 0;

[[nodiscard]] constexpr std::uint64_t LowBits(int count) { return (std::uint64_t{1} << count) - 1; }

class Writer {
 public:
  template <typename T>
  using Of = const T;

  template <typename T>
  void Field(int low, int count, const T& value) {
    bits_ |= (static_cast<std::uint64_t>(value) & LowBits(count)) << low;
  }
  /// The amount in `count` bits, and the sign above it.
  void Signed(int low, int count, int value) {
    Field(low, count, std::abs(value));
    Field(low + count, 1, value < 0);
  }
  template <typename Word>
  void Block(int low, const std::optional<Word>& word) {
    if (word) Field(low, 16, WordOf(*word));
  }

  [[nodiscard]] std::uint16_t WordAt(int low) const {
    return static_cast<std::uint16_t>(bits_ >> low);
  }

 private:
  std::uint64_t bits_ = 0;
};

class Reader {
 public:
  template <typename T>
  using Of = T;

  /// `known` has the bits that were received.
  explicit Reader(std::uint64_t bits, std::uint64_t known = ~std::uint64_t{0})
      : bits_(bits), known_(known) {}

  template <typename T>
  void Field(int low, int count, T& value) {
    whole_ = whole_ && Knows(low, count);
    value = static_cast<T>(bits_ >> low & LowBits(count));
  }
  void Signed(int low, int count, int& value) {
    bool negative = false;
    Field(low, count, value);
    Field(low + count, 1, negative);
    if (negative) value = -value;
  }
  template <typename Word>
  void Block(int low, std::optional<Word>& word) {
    if (Knows(low, 16)) word = FromWord<Word>(static_cast<std::uint16_t>(bits_ >> low));
  }

  /// True if no field was missing.
  [[nodiscard]] bool Whole() const { return whole_; }

 private:
  [[nodiscard]] bool Knows(int low, int count) const {
    return (known_ >> low & LowBits(count)) == LowBits(count);
  }

  std::uint64_t bits_;
  std::uint64_t known_;
  bool whole_ = true;
};

/// Block 2.
struct SecondBlock {
  GroupKind kind;
  bool tp = false;
  int pty = 0;
  int own = 0;
};

}  // namespace corvalis::air
