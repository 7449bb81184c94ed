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
  // Of no bits the checkword is the offset: of a B group C', else C.
  EXPECT_EQ(BitText({{0, 0x0800, 0, 0}}).substr(52),
            "0000000000000000110101000000000000000000000110110100");
  EXPECT_EQ(BitText({}),
            "0000000000000000001111110000000000000000000110011000"
            "0000000000000000010110100000000000000000000110110100");
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
  const Group group = RandomGroup(random);
  const auto expect_without = [&](std::string bits, std::size_t one, std::size_t other) {
    HeardGroup expected = Heard(group);
    expected.blocks[one] = expected.blocks[other] = std::nullopt;
    EXPECT_EQ(Find(finder, bits), std::vector{expected}) << one;
  };
  std::string bits = BitText(group);
  bits[0] = bits[0] == '0' ? '1' : '0';
  expect_without(bits, 0, 0);  // three blocks are enough to begin with
  bits[30] = bits[30] == '0' ? '1' : '0';
  expect_without(bits, 0, 1);
  // A right block, but of another place.
  bits = BitText(group);
  bits.replace(78, 26, bits.substr(0, 26));
  expect_without(bits, 3, 3);
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
