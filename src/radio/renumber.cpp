#include "radio/renumber.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>

namespace corvalis::radio {

namespace {

// The first value of each network's entry of a kind, by its number.
std::map<int, Value> NetworksBy(Item item, const std::vector<Entry>& entries) {
  std::map<int, Value> networks;
  for (const Entry& entry : entries) {
    if (entry.item == item) networks.emplace(entry.index, entry.values.front());
  }
  return networks;
}

void RenumberNetworks(const std::vector<Entry>& prepared, std::vector<Entry>& heard) {
  std::map<int, int> numbers;  // prepared, by heard
  std::set<int> taken;
  for (const Item by : {Item::kNetworkPi, Item::kNetworkName}) {
    const auto wanted = NetworksBy(by, prepared);
    for (const auto& [number, value] : NetworksBy(by, heard)) {
      if (numbers.contains(number)) continue;
      const auto found = std::ranges::find_if(wanted, [&, &name = value](const auto& candidate) {
        return candidate.second == name && !taken.contains(candidate.first);
      });
      if (found == wanted.end()) continue;
      numbers[number] = found->first;
      taken.insert(found->first);
    }
  }
  for (Entry& entry : heard) {
    if (!IsOfNetwork(entry.item)) continue;
    const auto found = numbers.find(entry.index);
    entry.index = found == numbers.end() ? kUnknown + entry.index : found->second;
  }
}

std::ptrdiff_t InCommon(const Entry& one, const Entry& other) {
  return std::ranges::count_if(one.values, [&other](const Value& value) {
    return std::ranges::find(other.values, value) != other.values.end();
  });
}

void RenumberLists(const std::vector<Entry>& prepared, std::vector<Entry>& heard) {
  std::vector<const Entry*> wanted;
  for (const Entry& entry : prepared) {
    if (entry.item == Item::kFrequencies) wanted.push_back(&entry);
  }
  std::vector<Entry*> lists;
  for (Entry& entry : heard) {
    if (entry.item == Item::kFrequencies) lists.push_back(&entry);
  }
  const auto take = [&](auto fits) {
    std::erase_if(lists, [&](Entry* list) {
      const auto best = std::ranges::max_element(
          wanted, {}, [&](const Entry* candidate) { return fits(*candidate, *list); });
      if (best == wanted.end() || fits(**best, *list) <= 0) return false;
      list->index = (*best)->index;
      list->row = (*best)->row;
      wanted.erase(best);
      return true;
    });
  };
  take([](const Entry& candidate, const Entry& list) {
    const bool same = candidate.row == list.row &&
                      (list.row != kMethodB || candidate.values.front() == list.values.front());
    return same ? 1 + InCommon(candidate, list) : 0;
  });
  take(InCommon);
  for (Entry* list : lists) list->index += kUnknown;
}

}  // namespace

bool IsOfNetwork(Item item) { return item >= Item::kNetworkPi && item <= Item::kNetworkLinkage; }

void Renumber(const std::vector<Entry>& prepared, std::vector<Entry>& heard) {
  RenumberNetworks(prepared, heard);
  RenumberLists(prepared, heard);
}

}  // namespace corvalis::radio
