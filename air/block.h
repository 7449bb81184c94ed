#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace corvalis::air {

/// A block on the air: 16 bits and a checkword of 10, that tells whether they came over, and by its
/// offset which block of a group they are.

inline constexpr int kWordBits = 16;
inline constexpr int kCheckBits = 10;
inline constexpr int kBlockBits = kWordBits + kCheckBits;

/// `kC2` is C', of the third block of a B group.
enum class Offset : std::uint8_t { kA, kB, kC, kC2, kD };
inline constexpr std::array<std::uint16_t, 5> kOffsetWords = {0x0FC, 0x198, 0x168, 0x350, 0x1B4};

/// The remainder of a block's 26 bits by g(x) = x^10 + x^8 + x^7 + x^5 + x^4 + x^3 + 1. Of a block
/// that came over it is the offset word.
[[nodiscard]] std::uint16_t Syndrome(std::uint32_t block);
[[nodiscard]] std::uint16_t Checkword(std::uint16_t word, Offset offset);
/// The 26 bits that go out, the uppermost first.
[[nodiscard]] std::uint32_t BlockOf(std::uint16_t word, Offset offset);
/// Which block of a group these 26 bits are; nullopt if they are none.
[[nodiscard]] std::optional<Offset> OffsetOf(std::uint32_t block);
[[nodiscard]] constexpr std::uint16_t WordIn(std::uint32_t block) {
  return static_cast<std::uint16_t>(block >> kCheckBits);
}

}  // namespace corvalis::air
