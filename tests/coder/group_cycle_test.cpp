// The order of the groups on the air.

#include "coder/on_air/group_cycle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

namespace corvalis::coder {
namespace {

std::string Letters(const std::vector<std::uint8_t>& cycle) {
  std::string text;
  for (const std::uint8_t group : cycle) text += static_cast<char>('a' + group);
  return text;
}

TEST(GroupCycle, SpreadsRepetitionsEvenly) {
  struct {
    Repetitions repetitions;
    const char* cycle;
  } const cases[] = {
      {{}, ""},
      {{0, 3}, "bbb"},
      {{2, 2}, "abab"},
      {{2, 1, 1}, "abac"},
      {{5, 1, 1}, "aabaaac"},
      {{3, 3, 3}, "abcabcabc"},
      {{4, 1, 3, 0, 0, 0, 0, 0, 1}, "acacbaiac"},
  };
  for (const auto& c : cases) EXPECT_EQ(Letters(SpreadEvenly(c.repetitions)), c.cycle);
}

TEST(GroupCycle, HasNoNeighboursAlikeWhereAnOrderWithoutThemIs) {
  std::mt19937 random(18);
  for (int round = 0; round < 2000; ++round) {
    Repetitions repetitions{};
    const int kinds = std::uniform_int_distribution(1, 9)(random);
    const int most = std::uniform_int_distribution(1, round % 50 == 0 ? 99 : 12)(random);
    for (int kind = 0; kind < kinds; ++kind) {
      repetitions[std::uniform_int_distribution<std::size_t>(0, kGroups - 1)(random)] =
          std::uniform_int_distribution(0, most)(random);
    }
    const auto cycle = SpreadEvenly(repetitions);
    const int total = std::accumulate(repetitions.begin(), repetitions.end(), 0);
    ASSERT_EQ(cycle.size(), static_cast<std::size_t>(total));
    int alike = 0;
    for (std::size_t i = 0; i < cycle.size(); ++i) {
      alike += cycle[i] == cycle[(i + 1) % cycle.size()] ? 1 : 0;
    }
    ASSERT_EQ(alike, std::max(0, 2 * *std::ranges::max_element(repetitions) - total))
        << Letters(cycle);
    for (std::size_t group = 0; group < kGroups; ++group) {
      if (repetitions[group] == 0) continue;
      ASSERT_EQ(std::ranges::count(cycle, group), repetitions[group]);
      std::size_t longest = 0;
      std::size_t since = 0;
      for (std::size_t i = 0; i < 2 * cycle.size(); ++i) {
        ++since;
        if (cycle[i % cycle.size()] != group) continue;
        longest = i < cycle.size() && since == i + 1 ? longest : std::max(longest, since);
        since = 0;
      }
      EXPECT_LE(longest, 2.0 * total / repetitions[group] + 2) << Letters(cycle);
    }
  }
}

}  // namespace
}  // namespace corvalis::coder
