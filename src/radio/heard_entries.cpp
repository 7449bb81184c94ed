#include <algorithm>
#include <cstddef>
#include <iterator>

#include "radio/entries.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

constexpr std::size_t kTrafficGroup = 8;  // 8A among the applications
constexpr std::uint16_t kTraffic = air::Group3A::kTrafficMessages;

std::string Bytes(const auto& bytes) { return {bytes.begin(), bytes.end()}; }

std::string WithoutBlanksAtEnd(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

// Gathers what counts, and came since.
class Gatherer {
 public:
  explicit Gatherer(air::AirSeconds from) : from_(from) {}

  template <class T, class Make>
  void Add(Item item, const air::Item<T>& heard, Make make, int index = 0) {
    if (!heard.IsHeard() || heard.last < from_) return;
    entries_.push_back({.item = item, .index = index, .values = {make(heard.value)}});
  }
  // All that is heard of a list is one entry; none if nothing is.
  template <class List, class Make>
  void AddList(Entry entry, const List& list, Make make) {
    Take(entry, list, make);
    if (!entry.values.empty()) entries_.push_back(std::move(entry));
  }
  template <class List, class Make>
  void Take(Entry& entry, const List& list, Make make) {
    for (const auto& heard : list) {
      if (!heard.IsHeard() || heard.last < from_) continue;
      entry.times = entry.values.empty() ? heard.times : std::min(entry.times, heard.times);
      entry.values.push_back(make(heard.value));
    }
  }
  [[nodiscard]] bool Counts(air::AirSeconds last) const { return last >= from_; }
  void Add(Entry entry) { entries_.push_back(std::move(entry)); }
  std::vector<Entry> Entries() && { return std::move(entries_); }

 private:
  air::AirSeconds from_;
  std::vector<Entry> entries_;
};

void AddLists(const air::FrequencySets& sets, Gatherer& gatherer) {
  gatherer.AddList({.item = Item::kFrequencies}, sets.a, FrequencyValue);
  int index = 0;
  for (const auto& transmitter : sets.b) {
    if (!transmitter.IsHeard() || !gatherer.Counts(transmitter.last)) continue;
    Entry list{.item = Item::kFrequencies,
               .index = index++,
               .row = kMethodB,
               .values = {FrequencyValue(transmitter.tuned)}};
    gatherer.Take(list, transmitter.same, FrequencyValue);
    gatherer.Take(list, transmitter.regional, FrequencyValue);
    list.times = transmitter.times;
    gatherer.Add(std::move(list));
  }
}

void AddNetwork(const air::OtherNetwork& network, int index, Gatherer& gatherer) {
  gatherer.Add({.item = Item::kNetworkPi, .index = index, .values = {HexValue(network.pi, 4)}});
  gatherer.Add(
      Item::kNetworkName, network.name, [](const auto& name) { return TextValue(Bytes(name)); },
      index);
  gatherer.Add(Item::kNetworkTp, network.tp, OnOffValue, index);
  gatherer.Add(Item::kNetworkTa, network.ta, OnOffValue, index);
  gatherer.Add(Item::kNetworkPty, network.pty, PtyValue, index);
  gatherer.AddList({.item = Item::kNetworkFrequencies, .index = index}, network.frequencies,
                   FrequencyValue);
  gatherer.AddList({.item = Item::kNetworkPairs, .index = index}, network.pairs, PairValue);
  gatherer.Add(Item::kNetworkItem, network.item, ItemNumberValue, index);
  gatherer.Add(Item::kNetworkLinkage, network.linkage, LinkageValue, index);
}

void AddChannels(const air::Reception& heard, Gatherer& gatherer) {
  const auto bits = [](const air::ChannelBytes& bytes) {
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes.bytes) value = value << 8 | byte;
    return value;
  };
  const auto subchannel = [&](const air::ChannelBytes& b) { return SubchannelValue(bits(b)); };
  const auto channel = [&](const air::ChannelBytes& b) {
    return HexValue(bits(b) >> (8 * (4 - b.count)), 2 * b.count);
  };
  gatherer.AddList({.item = Item::kSubchannel}, heard.channels[0], subchannel);
  for (std::size_t i = 1; i < heard.channels.size(); ++i) {
    gatherer.AddList({.item = Item::kChannel, .index = static_cast<int>(i)}, heard.channels[i],
                     channel);
  }
  for (std::size_t i = 0; i < heard.pages.size(); ++i) {
    gatherer.Add(
        Item::kPage, heard.pages[i].text,
        [](const std::string& text) { return TextValue(WithoutBlanksAtEnd(text)); },
        static_cast<int>(i));
  }
}

void AddTraffic(const air::Reception& heard, Gatherer& gatherer) {
  const auto number = [](int value) { return Plain(std::to_string(value)); };
  const auto& table = heard.traffic.table;
  const auto& carrier = heard.applications[kTrafficGroup].id;
  if (!carrier.IsHeard() || carrier.value != kTraffic) return;
  gatherer.Add(Item::kTrafficTable, table, [&](const auto& t) { return number(t.table); });
  gatherer.Add(Item::kTrafficService, heard.traffic.service,
               [&](const auto& s) { return number(s.service); });
  gatherer.Add(Item::kTrafficScopes, table, ScopesValue);
  gatherer.AddList({.item = Item::kTrafficMessage}, heard.traffic.messages, MessageValue);
}

}  // namespace

std::vector<Entry> EntriesOf(const air::Reception& heard, air::AirSeconds from) {
  const auto hex = [](int digits) {
    return [digits](int value) { return HexValue(static_cast<std::uint32_t>(value), digits); };
  };
  const auto eight = [](const air::EightBytes& bytes) { return TextValue(Bytes(bytes)); };
  Gatherer gatherer(from);
  gatherer.Add(Item::kPi, heard.pi, hex(4));
  gatherer.Add(Item::kEcc, heard.country, hex(2));
  gatherer.Add(Item::kLanguage, heard.language, LanguageValue);
  gatherer.Add(Item::kTp, heard.tp, OnOffValue);
  gatherer.Add(Item::kTa, heard.ta, OnOffValue);
  gatherer.Add(Item::kMusic, heard.music, MusicValue);
  gatherer.Add(Item::kStereo, heard.stereo, OnOffValue);
  gatherer.Add(Item::kArtificialHead, heard.artificial_head, OnOffValue);
  gatherer.Add(Item::kCompressed, heard.compressed, OnOffValue);
  gatherer.Add(Item::kDynamicPty, heard.dynamic_pty, OnOffValue);
  gatherer.Add(Item::kPty, heard.pty, PtyValue);
  gatherer.Add(Item::kTypeName, heard.type_name, eight);
  gatherer.AddList({.item = Item::kName}, heard.ps.names, eight);
  gatherer.AddList({.item = Item::kText}, heard.rt.texts,
                   [](const auto& bytes) { return TextValue(WithoutBlanksAtEnd(Bytes(bytes))); });
  gatherer.Add(Item::kClock, heard.clock,
               [](const auto& clock) { return OffsetValue(clock.offset_half_hours); });
  gatherer.Add(Item::kProgrammeItem, heard.item, ItemNumberValue);
  AddLists(heard.frequencies, gatherer);
  if (heard.linked.IsHeard()) {
    gatherer.Add(Item::kLinked, heard.linked, OnOffValue);
  } else {
    gatherer.Add(Item::kLinked, heard.linkage,
                 [](const auto& link) { return OnOffValue(link.la); });
  }
  gatherer.Add(Item::kLinkage, heard.linkage, LinkageValue);
  int index = 0;
  for (const auto& network : heard.networks) {
    if (network.IsHeard() && gatherer.Counts(network.last)) {
      AddNetwork(network, index++, gatherer);
    }
  }
  AddChannels(heard, gatherer);
  AddTraffic(heard, gatherer);
  return std::move(gatherer).Entries();
}

}  // namespace corvalis::radio
