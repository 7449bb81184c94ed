#include "air/block.h"

#include <algorithm>

namespace corvalis::air {

namespace {

constexpr std::uint32_t kCheckMask = (1U << kCheckBits) - 1;
constexpr std::uint32_t kGenerator = 0x5B9;  // x^10 is its uppermost bit

// What a byte leaves that stands just above the checkword.
constexpr std::array<std::uint16_t, 256> kRemainders = [] {
  std::array<std::uint16_t, 256> remainders{};
  for (std::uint32_t byte = 0; byte < remainders.size(); ++byte) {
    std::uint32_t rest = byte << kCheckBits;
    for (int bit = kCheckBits + 7; bit >= kCheckBits; --bit) {
      if ((rest >> bit & 1U) != 0) rest ^= kGenerator << (bit - kCheckBits);
    }
    remainders[byte] = static_cast<std::uint16_t>(rest);
  }
  return remainders;
}();

// The remainder of a word times x^10.
std::uint32_t Remainder(std::uint32_t word) {
  const std::uint32_t upper = kRemainders[word >> 8];
  // Its uppermost eight bits come to stand where the lower byte does.
  return kRemainders[(upper >> (kCheckBits - 8) ^ word) & 0xFF] ^ (upper << 8 & kCheckMask);
}

std::uint32_t OffsetWord(Offset offset) { return kOffsetWords[static_cast<std::size_t>(offset)]; }

}  // namespace

std::uint16_t Syndrome(std::uint32_t block) {
  return static_cast<std::uint16_t>(Remainder(WordIn(block)) ^ (block & kCheckMask));
}

std::uint16_t Checkword(std::uint16_t word, Offset offset) {
  return static_cast<std::uint16_t>(Remainder(word) ^ OffsetWord(offset));
}

std::uint32_t BlockOf(std::uint16_t word, Offset offset) {
  return std::uint32_t{word} << kCheckBits | Checkword(word, offset);
}

std::optional<Offset> OffsetOf(std::uint32_t block) {
  const auto* const found = std::ranges::find(kOffsetWords, Syndrome(block));
  if (found == kOffsetWords.end()) return std::nullopt;
  return static_cast<Offset>(found - kOffsetWords.begin());
}

}  // namespace corvalis::air
