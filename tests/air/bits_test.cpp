// Groups as bits, and found again in them.

#include "air/bits.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace corvalis::air {
namespace {

Group RandomGroup(std::mt19937& random) {
  Group group;
  for (auto& block : group.blocks) block = static_cast<std::uint16_t>(random());
  return group;
}

std::vector<HeardGroup> Find(GroupFinder& finder, const std::string& bits) {
  std::vector<HeardGroup> found;
  for (const char bit : bits) {
    if (const auto group = finder.Take(bit == '1')) found.push_back(*group);
  }
  return found;
}

TEST(Bits, AreTheBlocksWithTheirCheckwords) {
  // 5201 with 2F9, 0408 with 3E7, C' and D; see the matrix in the test of blocks.
  const std::string bits = BitText({{0x5201, 0x0C08, 0x5201, 0x0000}});
  ASSERT_EQ(bits.size(), kGroupBits);
  EXPECT_EQ(bits.substr(0, 16), "0101001000000001");
  EXPECT_EQ(bits.substr(52, 16), bits.substr(0, 16));
  EXPECT_NE(bits.substr(68, 10), bits.substr(16, 10));
  EXPECT_EQ(bits.substr(78), "00000000000000000110110100");
}

TEST(GroupFinder, FindsAMillionGroups) {
  std::mt19937 random(31);
  GroupFinder finder;
  for (int i = 0; i < 1'000'000; ++i) {
    const Group group = RandomGroup(random);
    const auto found = Find(finder, BitText(group));
    ASSERT_EQ(found, std::vector{Heard(group)}) << i;
  }
}

TEST(GroupFinder, GetsIntoStepWhereverItBegins) {
  std::mt19937 random(5);
  for (std::size_t begin = 0; begin < kGroupBits; ++begin) {
    GroupFinder finder;
    std::vector<HeardGroup> groups;
    std::string bits;
    for (int i = 0; i < 4; ++i) {
      const Group group = RandomGroup(random);
      bits += BitText(group);
      groups.push_back(Heard(group));
    }
    // Three whole blocks are enough, and the groups that they are in.
    const auto found = Find(finder, bits.substr(begin));
    ASSERT_GE(found.size(), begin == 0 ? 4U : 3U) << begin;
    EXPECT_TRUE(std::equal(found.rbegin(), found.rbegin() + 3, groups.rbegin())) << begin;
  }
}

TEST(GroupFinder, MissesWhatIsSpoiltAndLooksAnew) {
  std::mt19937 random(8);
  GroupFinder finder;
  EXPECT_EQ(Find(finder, BitText(RandomGroup(random))).size(), 1U);
  const Group group = RandomGroup(random);
  std::string bits = BitText(group);
  bits[30] = bits[30] == '0' ? '1' : '0';  // of block 2
  bits[103] = bits[103] == '0' ? '1' : '0';
  HeardGroup expected = Heard(group);
  expected.blocks[1] = expected.blocks[3] = std::nullopt;
  EXPECT_EQ(Find(finder, bits), std::vector{expected});
  // A bit is lost.
  std::vector<HeardGroup> found;
  Group last;
  static_cast<void>(finder.Take(true));
  for (int i = 0; i < 9; ++i) {
    last = RandomGroup(random);
    found = Find(finder, BitText(last));
  }
  EXPECT_TRUE(finder.InStep());
  EXPECT_EQ(found, std::vector{Heard(last)});
}

}  // namespace
}  // namespace corvalis::air
