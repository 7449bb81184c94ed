#include "radio/face_data.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>

#include "air/characters.h"
#include "air/groups.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

constexpr std::size_t kTrafficGroup = 8;   // 8A among the applications
constexpr std::size_t kLastMessages = 16;  // shown of traffic messages
constexpr std::size_t kLastOfChannel = 4;  // shown of a channel
constexpr std::size_t kLongest = 256;      // bytes shown of a page
constexpr double kKilohertz = 1000;

void Add(std::string& text, const std::string& more, const char* between = ", ") {
  text += (text.empty() ? "" : between) + more;
}

template <class List, class Make>
std::string Joined(const List& list, Make make) {
  std::string text;
  for (const auto& entry : list) {
    if (entry.IsHeard()) Add(text, make(entry.value).shown);
  }
  return text;
}

void Mark(const air::HeardFrequency& frequency, bool tuned, Face& face) {
  const std::string text = FrequencyValue(frequency).shown;
  if (text.ends_with("kHz")) {
    auto& beside = face.marks_beside;
    if (std::ranges::find(beside, text) == beside.end()) beside.push_back(text);
    return;
  }
  const auto found = std::ranges::find(face.marks, text, &Face::Mark::text);
  if (found != face.marks.end()) {
    found->tuned |= tuned;
    return;
  }
  face.marks.push_back({.mhz = frequency.Kilohertz() / kKilohertz, .text = text, .tuned = tuned});
}

template <class List>
void MarkAll(const List& list, Face& face) {
  for (const auto& entry : list) {
    if (entry.IsHeard()) Mark(entry.value, false, face);
  }
}

template <class T, class Make>
std::string Cell(const air::Item<T>& item, Make make) {
  if (item.IsHeard()) return make(item.value).shown;
  return item.hearing == air::Hearing::kNot ? std::string() : "...";
}

Face::Network NetworkOf(const air::OtherNetwork& network) {
  Face::Network row;
  row.announces = network.ta.IsHeard() && network.ta.value;
  row.cells[Face::kNetworkName] = Cell(network.name, [](const auto& name) {
    return TextValue({name.begin(), name.end()});
  });
  row.cells[Face::kNetworkPi] = HexValue(network.pi, 4).shown;
  row.cells[Face::kNetworkType] = Cell(network.pty, PtyValue);
  row.cells[Face::kNetworkTp] = Cell(network.tp, OnOffValue);
  row.cells[Face::kNetworkTa] = row.announces ? InWords("on now") : Cell(network.ta, OnOffValue);
  std::string frequencies = Joined(network.frequencies, FrequencyValue);
  const std::string pairs = Joined(network.pairs, PairValue);
  if (!pairs.empty()) Add(frequencies, pairs, "; ");
  row.cells[Face::kNetworkFrequencies] = std::move(frequencies);
  row.cells[Face::kNetworkLinkage] = Cell(network.linkage, [](const air::Linkage& link) {
    return Plain(LinkageValue(link).shown + ", " +
                 (link.la ? InWords("linked") : InWords("not linked")));
  });
  row.cells[Face::kNetworkItem] = Cell(network.item, ItemNumberValue);
  return row;
}

std::string Bytes(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes.first(std::min(bytes.size(), kLongest))) {
    Add(text, HexValue(byte, 2).shown, " ");
  }
  return bytes.size() > kLongest ? text + " ..." : text;
}

std::string Text(std::span<const std::uint8_t> bytes) {
  const std::string text = air::RadioText(bytes.first(std::min(bytes.size(), kLongest)));
  return bytes.size() > kLongest ? text + "..." : text;
}

/// What came last of a list, the latest in front.
template <class List>
std::vector<typename List::Entry> Latest(const List& list, std::size_t most) {
  std::vector<typename List::Entry> entries;
  std::ranges::copy_if(list, std::back_inserter(entries),
                       [](const auto& entry) { return entry.IsHeard(); });
  std::ranges::stable_sort(entries, std::ranges::greater(), &List::Entry::last);
  if (entries.size() > most) entries.resize(most);
  return entries;
}

void ShowTraffic(const air::Reception& heard, Face& face) {
  const auto& carrier = heard.applications[kTrafficGroup].id;
  if (!carrier.IsHeard() || carrier.value != air::Group3A::kTrafficMessages) return;
  const auto& table = heard.traffic.table;
  const auto& service = heard.traffic.service;
  std::string system;
  if (table.IsHeard()) {
    Add(system, InWords("location table %1", {std::to_string(table.value.table)}));
    Add(system, ScopesValue(table.value).shown);
  }
  if (service.IsHeard()) {
    Add(system, InWords("service %1", {std::to_string(service.value.service)}));
  }
  if (system.empty()) system = InWords("being heard");
  face.data.push_back({.what = InWords("TMC System"), .bytes = {}, .text = system});
  for (const auto& entry : Latest(heard.traffic.messages, kLastMessages)) {
    face.data.push_back(
        {.what = InWords("TMC message"), .bytes = {}, .text = MessageValue(entry.value).shown});
  }
}

}  // namespace

void ShowFrequencies(const air::FrequencySets& sets, Face& face) {
  MarkAll(sets.a, face);
  const std::string a = Joined(sets.a, FrequencyValue);
  if (!a.empty()) face.methods.push_back(InWords("Method A: %1", {a}));
  for (const auto& transmitter : sets.b) {
    if (!transmitter.IsHeard()) continue;
    Mark(transmitter.tuned, true, face);
    MarkAll(transmitter.same, face);
    MarkAll(transmitter.regional, face);
    std::string text = Joined(transmitter.same, FrequencyValue);
    const std::string regional = Joined(transmitter.regional, FrequencyValue);
    if (!regional.empty()) Add(text, InWords("regional %1", {regional}), "; ");
    face.methods.push_back(
        InWords("Method B, tuned to %1: %2", {FrequencyValue(transmitter.tuned).shown, text}));
  }
}

void ShowNetworks(const std::vector<air::OtherNetwork>& networks, Face& face) {
  for (const auto& network : networks) {
    if (network.IsHeard()) face.networks.push_back(NetworkOf(network));
  }
  std::ranges::stable_sort(face.networks, std::ranges::greater(), &Face::Network::announces);
}

void ShowData(const air::Reception& heard, Face& face) {
  ShowTraffic(heard, face);
  for (std::size_t i = 0; i < heard.channels.size(); ++i) {
    for (const auto& entry : Latest(heard.channels[i], kLastOfChannel)) {
      const auto bytes = std::span(entry.value.bytes).first(entry.value.count);
      face.data.push_back({.what = InWords("Channel %1", {std::to_string(i)}),
                           .bytes = Bytes(bytes),
                           .text = Text(bytes)});
    }
  }
  for (std::size_t i = 0; i < heard.pages.size(); ++i) {
    const auto& page = heard.pages[i];
    if (!page.text.IsHeard() && page.building.empty()) continue;
    const std::string& text = page.text.IsHeard() ? page.text.value : page.building;
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    face.data.push_back(
        {.what = page.text.IsHeard()
                     ? InWords("In-house page %1", {std::to_string(i)})
                     : InWords("In-house page %1, being heard", {std::to_string(i)}),
         .bytes = Bytes(bytes),
         .text = Text(bytes)});
  }
}

}  // namespace corvalis::radio
