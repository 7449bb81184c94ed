#include <algorithm>
#include <cstddef>

#include "radio/entries.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

constexpr int kB = Prepared::kGroups / 2;  // and a number: its B group
constexpr std::size_t kShortText = 32;     // characters in 2B

using Entries = std::vector<Entry>;
using Groups = std::vector<int>;

std::uint16_t Word(int value) { return static_cast<std::uint16_t>(value); }

void Add(Entries& entries, Item item, Value value, Groups carriers = {}, int index = 0) {
  entries.push_back({.item = item,
                     .index = index,
                     .values = {std::move(value)},
                     .carriers = std::move(carriers)});
}

void AddTexts(const Prepared& prepared, Entries& entries) {
  for (const Prepared::Name& name : prepared.names) {
    entries.push_back({.item = Item::kName,
                       .index = name.page,
                       .row = name.row,
                       .values = {TextValue(name.bytes)},
                       .carriers = {0, kB},
                       .shows = name.shows});
  }
  for (const Prepared::Text& text : prepared.texts) {
    Entry entry{.item = Item::kText, .row = text.row, .carriers = {2, kB + 2}};
    if (prepared.On(2) || !prepared.On(kB + 2)) entry.values.push_back(TextValue(text.bytes));
    if (prepared.On(kB + 2) && (entry.values.empty() || text.bytes.size() > kShortText)) {
      std::string cut = text.bytes.substr(0, kShortText);
      cut.erase(cut.find_last_not_of(' ') + 1);
      entry.values.push_back(TextValue(cut));
    }
    entries.push_back(std::move(entry));
  }
}

// The codes of a list behind its count, one or two of them a frequency.
std::vector<air::HeardFrequency> FrequenciesIn(const air::AfCodes& codes) {
  std::vector<air::HeardFrequency> frequencies;
  for (std::size_t at = 1; at < codes.size(); ++at) {
    constexpr std::uint8_t kFirstOffset = 253;
    const std::uint8_t code = codes[at];
    if (code == air::kLfOrMfNext || code >= kFirstOffset) {
      if (++at < codes.size()) frequencies.push_back({code, codes[at]});
    } else if (code >= 1 && code <= air::kLastFmCode) {
      frequencies.push_back({0, code});
    }
  }
  return frequencies;
}

void AddValue(std::vector<Value>& values, const Value& value) {
  if (std::ranges::find(values, value) == values.end()) values.push_back(value);
}

void AddLists(const Prepared& prepared, Entries& entries) {
  for (const Prepared::FrequencyList& list : prepared.lists) {
    Entry entry{.item = Item::kFrequencies,
                .index = list.list,
                .row = prepared.method_a ? 0 : kMethodB,
                .carriers = {0}};
    for (const auto& frequency : FrequenciesIn(list.codes)) {
      AddValue(entry.values, FrequencyValue(frequency));
    }
    entries.push_back(std::move(entry));
  }
}

void AddNetwork(const Prepared::Network& network, Entries& entries) {
  const Groups told = {14};
  const Groups announced = {14, kB + 14};
  const auto add = [&](Item item, Value value, const Groups& carriers) {
    Add(entries, item, std::move(value), carriers, network.list);
  };
  add(Item::kNetworkPi, HexValue(Word(network.pi), 4), announced);
  add(Item::kNetworkName, TextValue(network.name), told);
  add(Item::kNetworkTp, OnOffValue(network.tp), announced);
  add(Item::kNetworkTa, OnOffValue(network.ta), announced);
  add(Item::kNetworkPty, PtyValue(network.pty), told);
  if (!network.codes.empty()) {
    Entry list{.item = Item::kNetworkFrequencies, .index = network.list, .carriers = told};
    for (const std::uint8_t code : network.codes) {
      AddValue(list.values, FrequencyValue({0, code}));
    }
    entries.push_back(std::move(list));
  }
  if (!network.pairs.empty()) {
    Entry pairs{.item = Item::kNetworkPairs, .index = network.list, .carriers = told};
    for (const auto& pair : network.pairs) {
      const std::uint8_t prefix = pair.am ? air::kLfOrMfNext : std::uint8_t{0};
      AddValue(pairs.values, PairValue({{0, pair.here}, {prefix, pair.there}}));
    }
    entries.push_back(std::move(pairs));
  }
  add(Item::kNetworkItem, ItemNumberValue(air::FromWord<air::ItemNumber>(Word(network.item))),
      told);
}

void AddChannels(const Prepared& prepared, Entries& entries) {
  for (const Prepared::Channel& channel : prepared.channels) {
    Entry entry{.item = channel.subchannel ? Item::kSubchannel : Item::kChannel,
                .index = channel.number,
                .row = channel.subchannel.value_or(0),
                .carriers = {5}};
    entry.values.push_back(channel.subchannel ? SubchannelValue(channel.bits)
                                              : HexValue(channel.bits, 8));
    entries.push_back(std::move(entry));
  }
  for (const Prepared::Page& page : prepared.pages) {
    Add(entries, Item::kPage, TextValue(page.bytes), {6}, page.number);
  }
}

void AddTraffic(const Prepared& prepared, Entries& entries) {
  if (prepared.traffic_system) {
    const auto& system = *prepared.traffic_system;
    Add(entries, Item::kTrafficTable, Plain(std::to_string(system.table)), {3});
    Add(entries, Item::kTrafficService, Plain(std::to_string(system.service)), {3});
    Add(entries, Item::kTrafficScopes,
        ScopesValue({.international = system.international,
                     .national = system.national,
                     .regional = system.regional,
                     .urban = system.urban}),
        {3});
  }
  for (const Prepared::TrafficMessage& message : prepared.traffic_messages) {
    entries.push_back({.item = Item::kTrafficMessage,
                       .row = message.row,
                       .values = {MessageValue({.single = true,
                                                .duration = message.duration,
                                                .diversion = message.diversion,
                                                .direction = message.direction,
                                                .extent = message.extent,
                                                .event = message.event,
                                                .location = Word(message.location)})},
                       .carriers = {8}});
  }
}

}  // namespace

std::vector<Entry> EntriesOf(const Prepared& prepared, const Moment& at) {
  const Groups switches = {0, kB, kB + 15};
  Entries entries;
  Add(entries, Item::kPi, HexValue(Word(prepared.pi), 4));
  if (prepared.ecc) Add(entries, Item::kEcc, HexValue(Word(*prepared.ecc), 2), {1});
  if (prepared.language) Add(entries, Item::kLanguage, LanguageValue(*prepared.language), {1});
  Add(entries, Item::kTp, OnOffValue(prepared.tp));
  Add(entries, Item::kTa, OnOffValue(prepared.ta), switches);
  Add(entries, Item::kMusic, MusicValue(prepared.music), switches);
  Add(entries, Item::kStereo, OnOffValue(prepared.stereo), switches);
  Add(entries, Item::kArtificialHead, OnOffValue(prepared.artificial_head), switches);
  Add(entries, Item::kCompressed, OnOffValue(prepared.compressed), switches);
  Add(entries, Item::kDynamicPty, OnOffValue(prepared.dynamic_pty), switches);
  Add(entries, Item::kPty, PtyValue(prepared.pty));
  const auto& type_name = prepared.type_names.at(static_cast<std::size_t>(at.pty));
  if (!type_name.empty()) Add(entries, Item::kTypeName, TextValue(type_name), {10});
  AddTexts(prepared, entries);
  Add(entries, Item::kClock, OffsetValue(prepared.offset_half_hours), {4});
  if (at.item != 0) {
    Add(entries, Item::kProgrammeItem,
        ItemNumberValue(air::FromWord<air::ItemNumber>(Word(at.item))), {1, kB + 1});
  }
  AddLists(prepared, entries);
  if (prepared.linkage) {
    const auto& linkage = *prepared.linkage;
    Add(entries, Item::kLinked, OnOffValue(linkage.active), {1, 14});
    Add(entries, Item::kLinkage,
        LinkageValue({.extended = linkage.extended_generic,
                      .international = linkage.international,
                      .number = linkage.set}),
        {14});
  }
  for (const Prepared::Network& network : prepared.networks) AddNetwork(network, entries);
  AddChannels(prepared, entries);
  AddTraffic(prepared, entries);
  return entries;
}

}  // namespace corvalis::radio
