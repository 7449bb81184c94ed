#include "coder/on_air/networks.h"

#include <algorithm>
#include <cstdint>

#include "air/af_codes.h"
#include "coder/digits.h"

namespace corvalis::coder {

namespace {

constexpr int kUrgentTimes = 8;

using Part = air::Group14A;

bool IsFmCode(std::uint8_t code) { return code >= 1 && code <= air::kLastFmCode; }
bool IsAmCode(std::uint8_t code) { return code >= 1 && code <= air::kLastAmCode; }

std::uint16_t PiIn(const Bytes& body) { return static_cast<std::uint16_t>(HexAt(body, 40, 4)); }

// Everything a list tells: name, TP, TA, PTY, PIN, 2 + 9 codes of FM and 1 of LF or MF, PI,
// enabled.
void AddParts(const Bytes& body, std::vector<Part>& parts) {
  const auto add = [&](int variant, const auto& content) {
    parts.push_back({.tp = FlagAt(body, 8),
                     .variant = variant,
                     .content = air::WordOf(content),
                     .pi = PiIn(body)});
  };
  const auto code = [&body](std::size_t at) {
    return static_cast<std::uint8_t>(HexAt(body, at, 2));
  };
  for (int variant = 0; variant <= Part::kLastName; ++variant) {
    const auto at = 2 * static_cast<std::size_t>(variant);
    add(variant, air::BytePair{body[at], body[at + 1]});
  }

  std::vector<std::uint8_t> list = {air::kAfCount};
  for (const std::size_t at : {std::size_t{16}, std::size_t{18}}) {
    if (IsFmCode(code(at))) list.push_back(code(at));
  }
  list[0] = static_cast<std::uint8_t>(air::kAfCount + list.size() - 1);
  if (list.size() % 2 != 0) list.push_back(air::kAfFiller);
  for (std::size_t at = 0; at < list.size() && list[0] != air::kAfCount; at += 2) {
    add(Part::kFrequencies, air::BytePair{list[at], list[at + 1]});
  }

  std::size_t at = 20;
  for (int variant = Part::kFirstPair; variant <= Part::kAmPair; ++variant, at += 4) {
    const air::BytePair pair{code(at), code(at + 2)};
    const bool is_other = variant == Part::kAmPair ? IsAmCode(pair[1]) : IsFmCode(pair[1]);
    if (IsFmCode(pair[0]) && is_other) add(variant, pair);
  }
  add(Part::kTypeAndAnnouncement,
      air::TypeAndAnnouncement{.pty = HexAt(body, 10, 2), .ta = FlagAt(body, 9)});
  add(Part::kItem, static_cast<std::uint16_t>(HexAt(body, 12, 4)));
}

}  // namespace

void NetworkRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  std::vector<Part> parts;
  std::vector<bool> announcing(static_cast<std::size_t>(coder.Sizes().eon));
  networks_.clear();
  for (int number = 0; number < coder.Sizes().eon; ++number) {
    const Bytes body = *coder.Item(kEon, number);
    if (!FlagAt(body, 44)) continue;
    AddParts(body, parts);
    networks_.push_back({number, {.tp = FlagAt(body, 8), .ta = FlagAt(body, 9), .pi = PiIn(body)}});
    announcing[static_cast<std::size_t>(number)] = FlagAt(body, 9);
  }
  if (announcing_) {
    announcing_->resize(announcing.size());
    for (const Network& network : networks_) {
      const auto at = static_cast<std::size_t>(network.number);
      if (announcing[at] != (*announcing_)[at]) Announce(network.number);
    }
  }
  announcing_ = std::move(announcing);

  if (coder.Written(kLi)) {
    // LA, extended generic, international linkage, set number.
    const Bytes body = *coder.Item(kLi);
    const air::Linkage linkage{.la = FlagAt(body, 0),
                               .extended = FlagAt(body, 1),
                               .international = FlagAt(body, 2),
                               .number = HexAt(body, 3, 3)};
    parts.push_back({.tp = FlagAt(*coder.Item(kTp), 0),
                     .variant = Part::kLinkage,
                     .content = air::WordOf(linkage),
                     .pi = static_cast<std::uint16_t>(HexAt(*coder.Item(kPi), 0, 4))});
  }
  if (parts.size() != parts_.size()) part_ = 0;
  parts_ = std::move(parts);
  if (network_ >= networks_.size()) network_ = 0;
}

air::Group14A NetworkRotation::NextPart() {
  const Part next = parts_[part_];
  part_ = (part_ + 1) % parts_.size();
  return next;
}

air::Group14B NetworkRotation::NextAnnouncement() {
  const air::Group14B next = networks_[network_].announcement;
  network_ = (network_ + 1) % networks_.size();
  return next;
}

std::optional<air::Group14B> NetworkRotation::TakeUrgent() {
  while (!urgent_.empty()) {
    Urgent& first = urgent_.front();
    const int number = first.number;
    if (--first.times == 0) urgent_.pop_front();
    const auto network = std::ranges::find(networks_, number, &Network::number);
    if (network != networks_.end()) return network->announcement;
  }
  return std::nullopt;
}

void NetworkRotation::Announce(int number) {
  std::erase_if(urgent_, [number](const Urgent& urgent) { return urgent.number == number; });
  urgent_.push_back({number, kUrgentTimes});
}

}  // namespace corvalis::coder
