#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "air/reception/item.h"

namespace corvalis::air {

/// Takes out of a full list what has not come for the longest time, of what does not count yet
/// before anything that does.
template <typename Entry>
void MakeRoom(std::vector<Entry>& entries, std::size_t most) {
  if (entries.size() < most) return;
  entries.erase(
      std::min_element(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::pair(a.IsHeard(), a.last) < std::pair(b.IsHeard(), b.last);
      }));
}

/// What came of things that take turns, as a set over time: in the order in which they came first.
/// An entry counts once it came `kNeeded` times. It holds `kMost` entries: the one that has not
/// come for the longest time gives way, one that does not count yet before any that does.
template <typename T, std::size_t kMost, std::uint32_t kNeeded>
class HeardList {
 public:
  struct Entry {
    T value{};
    std::uint32_t times = 0;
    AirSeconds first = 0;
    AirSeconds last = 0;

    [[nodiscard]] bool IsHeard() const { return times >= kNeeded; }
  };

  static constexpr std::size_t kCapacity = kMost;

  [[nodiscard]] auto begin() const { return entries_.begin(); }
  [[nodiscard]] auto end() const { return entries_.end(); }
  [[nodiscard]] std::size_t size() const { return entries_.size(); }
  [[nodiscard]] bool empty() const { return entries_.empty(); }

  [[nodiscard]] const Entry* Find(const T& value) const {
    const std::size_t at = Position(value);
    return at < entries_.size() ? &entries_[at] : nullptr;
  }
  [[nodiscard]] bool IsHeard(const T& value) const {
    const Entry* found = Find(value);
    return found != nullptr && found->IsHeard();
  }

  /// It came once. The entry stays where it is until something else is heard.
  Entry& Hear(const T& value, AirSeconds at) {
    const auto known = Position(value);
    if (known < entries_.size()) {
      Entry& entry = entries_[known];
      if (entry.times < UINT32_MAX) ++entry.times;
      entry.last = at;
      return entry;
    }
    MakeRoom(entries_, kMost);
    entries_.push_back({.value = value, .times = 1, .first = at, .last = at});
    return entries_.back();
  }

 private:
  // The number of entries if there is none.
  [[nodiscard]] std::size_t Position(const T& value) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.value == value; });
    return static_cast<std::size_t>(found - entries_.begin());
  }

  std::vector<Entry> entries_;
};

}  // namespace corvalis::air
