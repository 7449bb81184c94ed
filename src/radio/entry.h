#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "radio/prepared.h"

namespace corvalis::radio {

/// What travels, kind by kind, in the order in which reports tell it.
enum class Item : std::uint8_t {
  kPi,
  kEcc,
  kLanguage,
  kTp,
  kTa,
  kMusic,
  kStereo,
  kArtificialHead,
  kCompressed,
  kDynamicPty,
  kPty,
  kTypeName,
  kName,  ///< takes turns
  kText,  ///< takes turns
  kClock,
  kProgrammeItem,
  kFrequencies,
  kLinked,
  kLinkage,
  // Of another network; `Entry::index` is its list.
  kNetworkPi,
  kNetworkName,
  kNetworkTp,
  kNetworkTa,
  kNetworkPty,
  kNetworkFrequencies,
  kNetworkPairs,
  kNetworkItem,
  kNetworkLinkage,
  kSubchannel,  ///< takes turns
  kChannel,
  kPage,
  kTrafficTable,
  kTrafficService,
  kTrafficScopes,
  kTrafficMessage,  ///< takes turns
  kGroup
};

/// True for texts, whose characters count one by one.
[[nodiscard]] bool IsText(Item item);
/// True where several of a kind take turns, and what is heard does not say which of them it is.
[[nodiscard]] bool TakesTurns(Item item);

/// A value by what makes two of them the same, and as people read it (UTF-8).
struct Value {
  std::string key;
  std::string shown;

  bool operator==(const Value& other) const { return key == other.key; }
};

/// Something prepared, or heard: one value, or of a list all of them.
struct Entry {
  Item item{};
  int index = 0;  ///< of a list, a network, a channel or a page
  int row = 0;    ///< of those that take turns; of a list of frequencies `kMethodB` or 0
  /// Of a list all of them; prepared, of what takes turns, any one of them is it.
  std::vector<Value> values = {};
  /// The groups that carry it, as a group sequence counts them; empty: every group does.
  std::vector<int> carriers = {};
  /// Heard: how often each of the values came at least; 0 if nobody counts.
  std::uint32_t times = 0;
  /// Prepared: the Coder may put date or hour in its place.
  Prepared::Shows shows = Prepared::Shows::kText;
};

inline constexpr int kMethodB = 1;

/// "PS 00.03": what people call it.
[[nodiscard]] std::string NameOf(const Entry& entry);
/// "PS": what people call those that take turns.
[[nodiscard]] std::string KindOf(Item item);
/// "98.4, 95.7": all values, as people read them.
[[nodiscard]] std::string Shown(const Entry& entry);

}  // namespace corvalis::radio
