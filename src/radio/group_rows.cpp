#include "radio/group_rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "config/conversions.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

constexpr int kName = 0;
constexpr int kClockTime = 4;           // not by turns, but by the minute
constexpr int kAnnouncement = 16 + 14;  // also beside the turns
constexpr double kEnoughCycles = 10;    // to tell how often a group comes
constexpr std::uint64_t kByChance = 2;  // so many may be something else that was spoilt

using Places = std::array<int, Prepared::kGroups>;

std::uint64_t CountOf(const air::GroupCounts& heard, int group) {
  return heard.kinds.at(static_cast<std::size_t>(group));
}

// The places of each group in a cycle, as far as it is heard at all.
Places PlacesOf(const Prepared& prepared, const air::GroupCounts& heard) {
  Places places{};
  for (int group = 0; group < Prepared::kGroups; ++group) {
    if (group == kClockTime || !prepared.On(group)) continue;
    const int repetitions = prepared.groups->at(static_cast<std::size_t>(group)).repetitions;
    const bool speaks = group == kName || CountOf(heard, group) > 0;
    places.at(static_cast<std::size_t>(speaks ? group : kName)) += repetitions;
  }
  return places;
}

// How many cycles there were: what most groups say, whatever a single one does.
double CyclesOf(const Places& places, const air::GroupCounts& heard) {
  std::vector<double> cycles;
  for (std::size_t group = 0; group < places.size(); ++group) {
    if (places[group] > 0) {
      cycles.push_back(static_cast<double>(heard.kinds[group]) / places[group]);
    }
  }
  if (cycles.empty()) return 0;
  const auto middle = cycles.begin() + static_cast<std::ptrdiff_t>(cycles.size() / 2);
  std::ranges::nth_element(cycles, middle);
  return *middle;
}

// What is not counted exactly: a tenth, more where blocks are missing, and a few groups.
bool Agrees(double count, double expected, double missing_percent) {
  constexpr double kFew = 8;
  return std::abs(count - expected) <= kFew + expected * (0.1 + missing_percent / 500);
}

}  // namespace

std::vector<Row> CompareGroups(const Prepared& prepared, const air::GroupCounts& heard) {
  std::vector<Row> rows;
  if (!prepared.groups) return rows;
  const Places places = PlacesOf(prepared, heard);
  const double cycles = CyclesOf(places, heard);
  for (int group = 0; group < Prepared::kGroups; ++group) {
    const std::uint64_t count = CountOf(heard, group);
    const int of = places.at(static_cast<std::size_t>(group));
    Row row{.item = Item::kGroup, .name = NameOf({.item = Item::kGroup, .index = group})};
    if (!prepared.On(group)) {
      if (count <= kByChance || group == kAnnouncement) continue;
      row.prepared = InWords("off");
      row.heard = InWords("on");
      row.verdict = Verdict::kDiffers;
    } else if (of == 0 || count == 0) {
      continue;  // its items say so
    } else {
      row.prepared = std::to_string(of);
      if (cycles < kEnoughCycles) {
        row.verdict = Verdict::kNotHeard;
        row.remark = InWords("too few groups yet");
      } else if (Agrees(static_cast<double>(count), cycles * of, heard.MissingPercent()) ||
                 group == kAnnouncement) {
        row.heard = row.prepared;
        row.verdict = Verdict::kAgrees;
      } else {
        row.heard = FixedPoint(static_cast<float>(static_cast<double>(count) / cycles), 1, 1);
        row.verdict = Verdict::kDiffers;
      }
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace corvalis::radio
