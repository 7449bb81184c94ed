#include "coder/on_air/group_cycle.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <optional>

namespace corvalis::coder {

namespace {

// Lets each of `others` follow its share of `count` places of `most`, which are at least as many.
std::vector<std::uint8_t> Among(const std::vector<std::uint8_t>& others, std::uint8_t most,
                                std::size_t count) {
  if (others.empty()) return std::vector<std::uint8_t>(count, most);
  std::vector<std::uint8_t> cycle;
  cycle.reserve(count + others.size());
  for (std::size_t i = 0; i < others.size(); ++i) {
    const std::size_t share = (i + 1) * count / others.size() - i * count / others.size();
    cycle.insert(cycle.end(), share, most);
    cycle.push_back(others[i]);
  }
  return cycle;
}

// True if what is left can stand in `places` places with no two the same in a row, between `before`
// and, where the cycle begins again, `first`.
bool CanFollow(const Repetitions& left, int places, int before, int first) {
  for (int group = 0; group < kGroups; ++group) {
    const int kept_off = (group == before ? 1 : 0) + (group == first ? 1 : 0);
    if (left[static_cast<std::size_t>(group)] > std::max(0, (places + 1 - kept_off) / 2)) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::vector<std::uint8_t> SpreadEvenly(const Repetitions& repetitions) {
  const int total = std::accumulate(repetitions.begin(), repetitions.end(), 0);
  if (total == 0) return {};
  const auto* const most = std::ranges::max_element(repetitions);
  if (2 * *most >= total) {
    const auto at = static_cast<std::size_t>(most - repetitions.begin());
    Repetitions others = repetitions;
    others[at] = 0;
    return Among(SpreadEvenly(others), static_cast<std::uint8_t>(at),
                 static_cast<std::size_t>(*most));
  }

  std::vector<std::uint8_t> cycle;
  Repetitions left = repetitions;
  for (int places = total; places-- > 0;) {
    // The one that is due first, by the middle of its share of the cycle, of those that leave an
    // order for the rest.
    std::optional<std::size_t> next;
    double next_due = 0;
    for (std::size_t group = 0; group < kGroups; ++group) {
      if (left[group] == 0 || (!cycle.empty() && cycle.back() == group)) continue;
      const double due = (repetitions[group] - left[group] + 0.5) / repetitions[group];
      if (next && (due > next_due || (due == next_due && left[group] <= left[*next]))) continue;
      --left[group];
      const int number = static_cast<int>(group);
      const int first = cycle.empty() ? number : cycle.front();
      const bool fits = CanFollow(left, places, number, first);
      ++left[group];
      if (fits) {
        next = group;
        next_due = due;
      }
    }
    --left[*next];
    cycle.push_back(static_cast<std::uint8_t>(*next));
  }
  return cycle;
}

}  // namespace corvalis::coder
