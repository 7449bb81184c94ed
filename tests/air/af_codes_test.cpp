// The arithmetic of the AF lists.

#include "air/af_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "air/af_b_codes.h"
#include "programme/af_text.h"

namespace corvalis::test {
namespace {

air::AfFrequencies ListOf(const std::vector<float>& values) {
  air::AfFrequencies list{};
  std::copy(values.begin(), values.end(), list.begin());
  return list;
}

// The list without its empty entries, sorted.
std::vector<float> Entries(air::AfFrequencies list) {
  std::vector<float> entries;
  std::copy_if(list.begin(), list.end(), std::back_inserter(entries),
               [](float value) { return value != 0; });
  std::sort(entries.begin(), entries.end());
  return entries;
}

// The bytes up to the fillers at the end.
std::vector<int> Used(const air::AfCodes& codes) {
  std::vector<int> used(codes.begin(), codes.end());
  while (used.back() == 205) used.pop_back();
  return used;
}

TEST(AfCodes, WhatAnEntryTakes) {
  const std::pair<float, bool> cases[] = {
      {0, false},       {87.5F, false},  {87.6F, false}, {100.3F, false}, {107.9F, false},
      {107.975F, true}, {87.525F, true}, {99.95F, true}, {87.51F, true},  {153, true},
      {279, true},      {531, true},     {1602, true},   {152, false},    {280, false}};
  for (const auto& [value, pair] : cases) EXPECT_EQ(air::FreqHasOffset(value), pair) << value;
}

TEST(AfCodes, TextsOfBoxes) {
  std::istringstream taken(
      "87.5 87.5 107.975 107.975 0 0 000.000 0 100.1 100.1 100. 100 100.125 100.125 87.62599 "
      "87.625 "
      "99.9759 99.975 153 153 279 279 1602 1602 160.5 160.5 .0 0");
  float value = 0;
  for (std::string text; taken >> text >> value;) EXPECT_EQ(AfTextValue(text), value) << text;
  for (const char* refused : {"87.1259", ".0001", "100.13", "100.12", "87.45", "108", "152", "280",
                              "530", "1603", "", ".", "1.2.3", "abc", "100.1a"}) {
    EXPECT_EQ(AfTextValue(refused), std::nullopt) << refused;
  }
  const std::pair<float, float> rasters[] = {{160, 153},   {540, 540}, {535, 531},
                                             {1602, 1602}, {279, 279}, {87.625F, 87.625F}};
  for (const auto& [typed, kept] : rasters) EXPECT_EQ(air::OnAfRaster(typed), kept) << typed;
}

TEST(AfCodes, ListsOfMethodA) {
  struct Case {
    std::vector<float> list;
    std::vector<int> codes;
  };
  const Case cases[] = {
      {{}, {224}},
      {{87.6F}, {225, 1}},
      {{107.9F}, {225, 204}},
      {{87.5F}, {225, 0}},
      {{100, 87.625F}, {227, 125, 253, 1}},
      {{87.625F}, {227, 205, 253, 1}},
      {{0, 87.625F}, {226, 205, 253, 1}},  // an empty entry does not count
      {{100, 100, 87.55F}, {229, 125, 125, 205, 254, 0}},
      {{100, 107.975F}, {227, 125, 255, 204}},
      {{153, 279}, {226, 250, 1, 250, 15}},
      {{531, 1602}, {226, 250, 16, 250, 135}},
      {{100, 87.59F, 101}, {226, 125, 135}},  // off the raster: left out without a trace
  };
  for (const Case& c : cases) EXPECT_EQ(Used(air::AfACodes(ListOf(c.list))), c.codes);

  // At the last byte there is no room for two.
  air::AfFrequencies full;
  full.fill(100);
  for (const float last : {153.F, 87.525F}) {
    full.back() = last;
    const air::AfCodes codes = air::AfACodes(full);
    EXPECT_EQ(codes[0], last == 153 ? 224 + 24 : 224 + 25);
    EXPECT_EQ(codes[25], 205);
  }
}

TEST(AfCodes, ReadingListsOfMethodA) {
  air::AfCodes codes{};
  EXPECT_EQ(air::AfAFrequencies(codes), [] {
    air::AfFrequencies all;
    all.fill(87.5F);
    return all;
  }());
  codes.fill(205);
  const std::uint8_t some[] = {1, 205, 253, 1, 250, 15, 250, 16, 250, 0, 255, 204, 249};
  std::copy(std::begin(some), std::end(some), codes.begin() + 1);
  codes[25] = 250;  // its second byte is missing
  EXPECT_EQ(air::AfAFrequencies(codes), ListOf({87.6F, 0, 87.625F, 279, 531, 387, 107.975F}));
}

class Lists {
 public:
  air::AfFrequencies Next(bool good) {
    air::AfFrequencies list{};
    const int entries = From(0, 25);
    for (int i = 0; i < entries; ++i) list[static_cast<std::size_t>(i)] = Entry(good);
    return list;
  }

 private:
  int From(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
  float Entry(bool good) {
    switch (From(0, good ? 5 : 8)) {
      case 0:
        return static_cast<float>(144 + 9 * From(1, 15));
      case 1:
        return static_cast<float>(522 + 9 * From(1, 120));
      case 2:
        return 0;
      case 3:
        return static_cast<float>((87500 + 25 * From(0, 819)) / 1000.);
      case 6:  // between the steps
        return static_cast<float>(From(87000, 108200) / 1000.);
      case 7:
        return static_cast<float>(From(1000, 20000) / 10.);
      case 8:
        return static_cast<float>(From(-100, 100000) / 7.);
      default:
        return static_cast<float>((875 + From(0, 204)) / 10.);
    }
  }
  std::mt19937 random_{20240926};
};

// The bytes of ten thousand lists, as they are and arranged. A second implementation that did every
// step one by one gave the same number.
TEST(AfCodes, TenThousandListsComeOutAsEver) {
  Lists lists;
  std::uint64_t digest = 0;
  const auto add = [&digest](const air::AfFrequencies& list) {
    for (const std::uint8_t code : air::AfACodes(list)) digest = digest * 1099511628211U + code + 1;
  };
  for (int i = 0; i < 10000; ++i) {
    air::AfFrequencies list = lists.Next(i % 2 == 0);
    add(list);
    air::ArrangeAfList(list);
    add(list);
    for (const float value : list) {
      digest = digest * 1099511628211U + std::bit_cast<std::uint32_t>(value);
    }
  }
  EXPECT_EQ(digest, 16995386371262729559U);
}

// What the boxes let a person enter is on the air whole, without a filler between the entries.
TEST(AfCodes, AnArrangedListThatFitsComesBackWhole) {
  Lists lists;
  int tried = 0;
  while (tried < 3000) {
    air::AfFrequencies list = lists.Next(true);
    const std::vector<float> entries = Entries(list);
    if (static_cast<int>(entries.size()) > air::kAfEntries - air::AfByteCount(list)) continue;
    ++tried;
    air::ArrangeAfList(list);
    const air::AfFrequencies back = air::AfAFrequencies(air::AfACodes(list));
    ASSERT_EQ(Entries(back), entries);
    const auto gap = std::adjacent_find(back.begin() + 1, back.end(),
                                        [](float a, float b) { return a == 0 && b != 0; });
    ASSERT_EQ(gap, back.end());
  }
}

TEST(AfCodes, ListsOfMethodB) {
  struct Case {
    float main;
    std::vector<float> others;
    std::vector<int> codes;
  };
  const Case cases[] = {
      {100, {99, 101}, {229, 125, 115, 125, 125, 135}},
      {100, {0, 99, 0, 108, 101}, {229, 125, 115, 125, 125, 135}},
      {100, {100}, {227, 125, 125, 125}},
      {87.6F, {107.95F}, {227, 1, 1, 204}},
      {107.975F, {87.5F}, {227, 204, 0, 204}},
      {0, {99, 101}, {224}},
      {108, {99}, {224}},
      {100, {}, {224}},  // alone it goes out as empty
      // The thirteenth takes the place of one that is missing, and has none beyond the twelfth.
      {100, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 101}, {227, 125, 125, 135}},
  };
  for (const Case& c : cases) {
    air::AfBFrequencies list{.main = c.main};
    std::copy(c.others.begin(), c.others.end(), list.others.begin());
    EXPECT_EQ(Used(air::AfBCodes(list)), c.codes) << c.main;
  }
  // A failed read leaves zeros: 87.5 throughout, which goes out as a full list.
  air::AfBFrequencies full = air::AfBFrequenciesOf({});
  EXPECT_EQ(full.main, 87.5F);
  EXPECT_EQ(full.others[11], 87.5F);
  EXPECT_EQ(full.others[12], 0);
  full.others[12] = 101;
  EXPECT_EQ(air::AfBCodes(full)[0], 249);
  EXPECT_EQ(air::AfBCodes(full)[25], 0);

  air::AfCodes codes;
  codes.fill(205);
  EXPECT_EQ(air::AfBFrequenciesOf(codes).main, 0);
  const std::uint8_t some[] = {229, 125, 115, 125, 7, 8, 125, 135, 205, 205, 125, 136};
  std::copy(std::begin(some), std::end(some), codes.begin());
  const air::AfBFrequencies read = air::AfBFrequenciesOf(codes);
  EXPECT_EQ(read.main, 100);
  EXPECT_EQ((std::vector<float>(read.others.begin(), read.others.begin() + 3)),
            (std::vector<float>{99, 101, 0}));
}

}  // namespace
}  // namespace corvalis::test
