// Blocks and their checkwords.

#include "air/block.h"

#include <gtest/gtest.h>

namespace corvalis::air {
namespace {

// The generator matrix that the standard prints: what each bit of a word, the uppermost first, adds
// to the checkword.
constexpr std::uint16_t kRows[] = {0x077, 0x2E7, 0x3AF, 0x30B, 0x359, 0x370, 0x1B8, 0x0DC,
                                   0x06E, 0x037, 0x2C7, 0x3BF, 0x303, 0x35D, 0x372, 0x1B9};

TEST(Block, HasTheCheckwordOfTheMatrix) {
  for (int bit = 0; bit < kWordBits; ++bit) {
    EXPECT_EQ(Checkword(static_cast<std::uint16_t>(0x8000 >> bit), Offset::kA), kRows[bit] ^ 0x0FC)
        << bit;
  }
  // Worked by hand: 5201 is bits 14, 12, 9 and 0 of the word.
  EXPECT_EQ(Checkword(0x5201, Offset::kB), 0x2E7 ^ 0x30B ^ 0x1B8 ^ 0x1B9 ^ 0x198);
  EXPECT_EQ(BlockOf(0x5201, Offset::kB), 0x5201U << 10 | 0x075U);
}

TEST(Block, IsKnownByItsOffsetOrNotAtAll) {
  for (const Offset offset : {Offset::kA, Offset::kB, Offset::kC, Offset::kC2, Offset::kD}) {
    for (std::uint32_t word = 0; word < 0x10000; word += 0x101) {
      const std::uint32_t block = BlockOf(static_cast<std::uint16_t>(word), offset);
      ASSERT_EQ(OffsetOf(block), offset);
      ASSERT_EQ(WordIn(block), word);
      for (int bit = 0; bit < kBlockBits; ++bit) ASSERT_NE(OffsetOf(block ^ 1U << bit), offset);
    }
  }
}

}  // namespace
}  // namespace corvalis::air
