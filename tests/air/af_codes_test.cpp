// The arithmetic of the AF lists, by tables and against a second implementation that does every
// step one by one.

#include "air/af_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
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
  const std::pair<const char*, std::optional<float>> cases[] = {{"87.5", 87.5F},
                                                                {"107.975", 107.975F},
                                                                {"0", 0.F},
                                                                {"000.000", 0.F},
                                                                {"100.1", 100.1F},
                                                                {"100.", 100.F},
                                                                {"100.125", 100.125F},
                                                                {"87.1259", {}},
                                                                {"87.62599", 87.625F},
                                                                {"99.9759", 99.975F},
                                                                {"153", 153.F},
                                                                {"279", 279.F},
                                                                {"1602", 1602.F},
                                                                {"160.5", 160.5F},
                                                                {".0", 0.F},
                                                                {".0001", {}},
                                                                {"100.13", {}},
                                                                {"100.12", {}},
                                                                {"87.45", {}},
                                                                {"108", {}},
                                                                {"152", {}},
                                                                {"280", {}},
                                                                {"530", {}},
                                                                {"1603", {}},
                                                                {"", {}},
                                                                {".", {}},
                                                                {"1.2.3", {}},
                                                                {"abc", {}},
                                                                {"100.1a", {}}};
  for (const auto& [text, value] : cases) EXPECT_EQ(AfTextValue(text), value) << text;
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

// ---- The second implementation ----

float Step(float f) {
  const double tenths = static_cast<double>(f) * 10 + 0.0001;
  return static_cast<float>(std::floor(tenths) / 10);
}

bool Two(float f) {
  if (153 <= f && f <= 279) return true;
  if (531 <= f && f <= 1602) return true;
  return Step(f) != f;
}

std::vector<int> SlowCodes(const air::AfFrequencies& freq) {
  std::vector<int> byte{224};
  for (std::size_t i = 0; i < 25 && byte.size() <= 25;) {
    const auto put = [&](std::initializer_list<int> bytes, int counted) {
      byte.insert(byte.end(), bytes);
      byte[0] += counted;
      ++i;
    };
    const double f = freq.at(i);
    const float base = Step(freq.at(i));
    const double d = freq.at(i) - base;
    const int code = static_cast<int>(std::floor(static_cast<double>(base) * 10 - 875 + 0.5));
    const bool lf = f >= 153 && f <= 279;
    int m = 0;
    if (d >= -0.074 && d <= 0.076) m = 255;
    if (d >= -0.049 && d <= 0.051) m = 254;
    if (d >= -0.024 && d <= 0.026) m = 253;
    if (lf || (f >= 531 && f <= 1602)) {
      if (byte.size() == 25) break;
      put({250, static_cast<int>(std::floor(lf ? (f - 144) / 9 : (f - 522) / 9 + 15))}, 1);
    } else if (freq.at(i) < 87.5F || freq.at(i) > 107.975F) {
      put({205}, 0);
    } else if (d >= -0.001 && d <= 0.001) {
      put({code}, 1);
    } else if (m == 0) {
      put({}, 0);
    } else if (byte.size() % 2 == 1) {
      byte.push_back(205);
      byte[0] += 1;
    } else {
      put({m, code}, 2);
    }
  }
  byte.resize(26, 205);
  return byte;
}

void SlowArrange(air::AfFrequencies& e) {
  for (std::size_t i = 0; i <= 23; ++i) {
    for (std::size_t j = i + 1; j <= 24; ++j) {
      if (e[i] == 0 && e[j] != 0) std::swap(e[i], e[j]);
    }
  }
  std::size_t n = 0;
  while (n < 25 && e[n] != 0) ++n;
  if (n == 0) return;
  std::size_t k = 0;
  while (k < n && Two(e[k])) ++k;
  if (k < n) {
    if (k != 0) std::swap(e[0], e[k]);
    bool flag = false;
    for (k = 1; k + 2 <= n; ++k) {
      if (!Two(e[k])) {
        flag = !flag;
        if (flag && Two(e[k + 1])) {
          std::swap(e[k], e[k + 1]);
          flag = false;
        }
      }
      if (Two(e[k])) flag = false;
    }
  } else if (n < 25) {
    for (k = n; k >= 1; --k) std::swap(e[k], e[k - 1]);
    e[0] = 0;
  }
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

TEST(AfCodes, TenThousandListsAgainstTheSecondImplementation) {
  Lists lists;
  for (int i = 0; i < 10000; ++i) {
    air::AfFrequencies list = lists.Next(i % 2 == 0);
    const auto bytes = [](const air::AfCodes& codes) {
      return std::vector<int>(codes.begin(), codes.end());
    };
    ASSERT_EQ(bytes(air::AfACodes(list)), SlowCodes(list)) << i;
    air::AfFrequencies slow = list;
    SlowArrange(slow);
    air::ArrangeAfList(list);
    ASSERT_EQ(list, slow) << i;
    ASSERT_EQ(bytes(air::AfACodes(list)), SlowCodes(list)) << i;
  }
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
