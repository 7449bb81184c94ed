#include "coder/facts.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "air/af_codes.h"
#include "coder/describe.h"
#include "coder/digits.h"
#include "coder/on_air/channels.h"
#include "coder/on_air/frequencies.h"
#include "coder/on_air/names.h"
#include "coder/on_air/pages.h"
#include "coder/on_air/type_name.h"

namespace corvalis::coder {

namespace {

using Facts = air::StationFacts;

std::string NameOf(const Coder& coder, std::uint8_t command, int number) {
  return ItemName(*FindItem(command, number, coder.Sizes()), number);
}

std::string Characters(const Bytes& body, std::size_t at, std::size_t count) {
  const auto from = body.begin() + static_cast<std::ptrdiff_t>(at);
  return {from, from + static_cast<std::ptrdiff_t>(count)};
}

// The items of a list, from `first` on, that have a time: two digits behind `digits` others, before
// the text.
std::vector<Facts::Text> Timed(const Coder& coder, std::uint8_t command, int first, int count,
                               std::size_t digits) {
  std::vector<Facts::Text> texts;
  for (int number = first; number < first + count; ++number) {
    const Bytes body = *coder.Item(command, number);
    const int seconds = DecimalAt(body, digits, 2);
    if (seconds == 0) continue;
    const std::size_t at = digits + 2;
    texts.push_back(
        {NameOf(coder, command, number), seconds, Characters(body, at, body.size() - at)});
  }
  return texts;
}

// The names of one page, or of the list without pages; without a time in them the first alone.
std::vector<Facts::Text> Names(const Coder& coder, std::uint8_t command, int first) {
  const std::size_t digits = command == kPsnPage ? 1 : 0;
  auto names = Timed(coder, command, first, coder.Sizes().psn, digits);
  if (!names.empty() || coder.Sizes().psn == 0) return names;
  const Bytes body = *coder.Item(command, first);
  return {{NameOf(coder, command, first), 0, Characters(body, digits + 2, 8)}};
}

std::vector<std::vector<Facts::Text>> AllNames(const Coder& coder) {
  const auto active = PageInUse(coder);
  if (!active) return {Names(coder, kPsn, 0)};
  std::set<int> pages = {*active};
  for (int row = 0; row < coder.Sizes().plan; ++row) {
    const Bytes body = *coder.Item(kPsnPlan, row);
    if (FlagAt(body, 0)) pages.insert(HexAt(body, 18, 2));
  }
  std::vector<std::vector<Facts::Text>> sets;
  for (const int page : pages) {
    if (page < coder.Sizes().page) sets.push_back(Names(coder, kPsnPage, page * kPageStep));
  }
  return sets;
}

// Of a list as `NetworkRotation` tells it.
Facts::Network NetworkOf(const Bytes& body, std::string item) {
  const auto code = [&body](std::size_t at) {
    return static_cast<std::uint8_t>(HexAt(body, at, 2));
  };
  Facts::Network network{.item = std::move(item),
                         .pi = HexAt(body, 40, 4),
                         .tp = FlagAt(body, 8),
                         .ta = FlagAt(body, 9),
                         .name = Characters(body, 0, 8),
                         .codes = {}};
  for (const std::size_t at : {std::size_t{16}, std::size_t{18}}) {
    if (code(at) <= air::kLastFmCode) network.codes.push_back(code(at));
  }
  constexpr std::size_t kEnd = 40;  // of the pairs; the last is one of FM and LF or MF
  for (std::size_t at = 20; at < kEnd; at += 4) {
    const auto is_one = [](std::uint8_t other) { return other != 0 && other <= air::kLastFmCode; };
    if (is_one(code(at)) && is_one(code(at + 2))) ++network.pairs;
  }
  return network;
}

}  // namespace

air::StationFacts FactsOf(const Coder& coder) {
  const Counts& sizes = coder.Sizes();
  const auto one = [&coder](std::uint8_t command) { return *coder.Item(command); };
  const auto chosen = [&](std::uint8_t command) {
    return coder.Written(command) ? std::optional(HexAt(one(command), 0, 2)) : std::nullopt;
  };
  const auto follows = [&coder](auto rotation) {
    rotation.Follow(coder);
    return rotation;
  };

  Facts facts;
  for (int group = 0; group < Facts::kGroups; ++group) {
    const Bytes body = *coder.Item(kEnable, group);
    facts.groups[static_cast<std::size_t>(group)] = {FlagAt(body, 1), HexAt(body, 2, 2)};
  }
  facts.pi = HexAt(one(kPi), 0, 4);
  facts.pty = HexAt(one(kPty), 0, 2);
  facts.tp = FlagAt(one(kTp), 0);
  facts.ta = FlagAt(one(kTa), 0);
  facts.ecc = chosen(kEcc);
  facts.language = chosen(kLic);
  facts.names = AllNames(coder);
  facts.texts = Timed(coder, kRt, 0, sizes.rt, 0);
  for (int list = 0; list < sizes.af; ++list) {
    const auto codes = FrequencyList(coder, list);
    if (codes) facts.lists.push_back({NameOf(coder, kAf, list), {codes->begin(), codes->end()}});
  }
  facts.time = coder.Written(kCt);
  if (follows(TypeName()).HasName()) {
    facts.type_name = Characters(*coder.Item(kPtyn, facts.pty), 0, 8);
  }
  for (int item = 0; item < sizes.pin && !facts.items; ++item) {
    facts.items = coder.Written(kPin, item);
  }
  if (coder.Written(kLi)) {
    facts.linkage = Facts::Linkage{FlagAt(one(kLi), 0), HexAt(one(kLi), 3, 3)};
  }
  for (int list = 0; list < sizes.eon; ++list) {
    const Bytes body = *coder.Item(kEon, list);
    if (FlagAt(body, 44)) facts.networks.push_back(NetworkOf(body, NameOf(coder, kEon, list)));
  }
  if (coder.Written(kTmcSystem)) {
    const Bytes body = one(kTmcSystem);
    facts.traffic_system = {.table = HexAt(body, 0, 2), .anywhere = DigitsAt(body, 4, 4, 2) != 0};
  }
  for (int message = 0; message < sizes.tmc; ++message) {
    const Bytes body = *coder.Item(kTmc, message);
    facts.traffic_messages.push_back(
        {NameOf(coder, kTmc, message), HexAt(body, 0, 3), HexAt(body, 3, 4)});
  }
  facts.channels = follows(ChannelRotation()).HasData();
  facts.pages = follows(PageRotation()).HasText();
  return facts;
}

}  // namespace corvalis::coder
