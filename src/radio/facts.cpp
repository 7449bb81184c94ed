#include "radio/facts.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "radio/entry.h"

namespace corvalis::radio {

namespace {

using Facts = air::StationFacts;

std::string Named(Item item, int index, int row = 0) {
  return NameOf({.item = item, .index = index, .row = row});
}

void TakeTexts(const Prepared& prepared, Facts& facts) {
  int page = -1;
  for (const Prepared::Name& name : prepared.names) {
    if (name.page != page) facts.names.emplace_back();
    page = name.page;
    facts.names.back().push_back(
        {Named(Item::kName, name.page, name.row), name.seconds, name.bytes});
  }
  for (const Prepared::Text& text : prepared.texts) {
    facts.texts.push_back({Named(Item::kText, 0, text.row), text.seconds, text.bytes});
  }
}

void TakeNetworks(const Prepared& prepared, Facts& facts) {
  for (const Prepared::Network& network : prepared.networks) {
    std::string name = Named(Item::kNetworkPi, network.list);
    name.erase(name.rfind(' '));
    facts.networks.push_back({.item = std::move(name),
                              .pi = network.pi,
                              .tp = network.tp,
                              .ta = network.ta,
                              .name = network.name,
                              .codes = network.codes,
                              .pairs = static_cast<int>(network.pairs.size())});
  }
  if (prepared.linkage) {
    facts.linkage =
        Facts::Linkage{.active = prepared.linkage->active, .set = prepared.linkage->set};
  }
}

void TakeTraffic(const Prepared& prepared, Facts& facts) {
  if (prepared.traffic_system) {
    const Prepared::TrafficSystem& system = *prepared.traffic_system;
    facts.traffic_system = {
        .table = system.table,
        .anywhere = system.international || system.national || system.regional || system.urban};
  }
  for (const Prepared::TrafficMessage& message : prepared.traffic_messages) {
    facts.traffic_messages.push_back(
        {Named(Item::kTrafficMessage, 0, message.row), message.event, message.location});
  }
}

}  // namespace

air::StationFacts FactsOf(const Prepared& prepared) {
  Facts facts;
  for (std::size_t group = 0; group < facts.groups.size(); ++group) {
    facts.groups[group] = {true, 1};
    if (!prepared.groups) continue;
    const Prepared::Group& of = prepared.groups->at(group);
    facts.groups[group] = {of.enabled, of.repetitions};
  }
  facts.pi = prepared.pi;
  facts.pty = prepared.pty;
  facts.tp = prepared.tp;
  facts.ta = prepared.ta;
  facts.ecc = prepared.ecc;
  facts.language = prepared.language;
  facts.time = true;  // a Coder is told it with every configuration
  facts.type_name = prepared.type_names.at(static_cast<std::size_t>(prepared.pty));
  facts.items = !prepared.items.empty();
  for (const Prepared::FrequencyList& list : prepared.lists) {
    const int method = prepared.method_a ? 0 : kMethodB;
    facts.lists.push_back({.item = Named(Item::kFrequencies, list.list, method),
                           .codes = {list.codes.begin(), list.codes.end()},
                           .left_out = list.left_out});
  }
  facts.channels = !prepared.channels.empty();
  facts.pages = std::ranges::any_of(prepared.pages, [](const auto& p) { return !p.bytes.empty(); });
  TakeTexts(prepared, facts);
  TakeNetworks(prepared, facts);
  TakeTraffic(prepared, facts);
  return facts;
}

}  // namespace corvalis::radio
