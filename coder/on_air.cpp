#include "coder/on_air.h"

#include <algorithm>

#include "coder/commands.h"
#include "coder/digits.h"

namespace corvalis::coder {

namespace {

// Groups as the sequence counts them.
constexpr int k0A = air::Group0A::kKind.Index();
constexpr int k0B = air::Group0B::kKind.Index();
constexpr int k1A = air::Group1A::kKind.Index();
constexpr int k1B = air::Group1B::kKind.Index();
constexpr int k2A = air::Group2A::kKind.Index();
constexpr int k2B = air::Group2B::kKind.Index();
constexpr int k3A = air::Group3A::kKind.Index();
constexpr int k4A = air::Group4A::kKind.Index();
constexpr int k5A = air::Group5A::kKind.Index();
constexpr int k6A = air::Group6A::kKind.Index();
constexpr int k8A = air::Group8A::kKind.Index();
constexpr int k10A = air::Group10A::kKind.Index();
constexpr int k14A = air::Group14A::kKind.Index();
constexpr int k14B = air::Group14B::kKind.Index();
constexpr int k15B = air::Group15B::kKind.Index();

// The group whose end is nearest to the end of a minute tells the time. At the moment it begins,
// this is how far ahead the minute may lie that it tells.
constexpr AirTime kTellsAhead = kGroupTime + kGroupTime / 2;

}  // namespace

OnAir::OnAir(Coder& coder) : coder_(coder) {}

air::Group OnAir::Next(AirTime now) {
  Follow(now);
  FollowTime(now);

  const auto tells = clock_.Local(now + kTellsAhead);
  if (tells != told_) {
    told_ = tells;
    if (clock_enabled_) {
      return Build(air::Group4A::Of(clock_.Utc(*told_), clock_.OffsetHalfHours()));
    }
  }
  if (const auto urgent = networks_.TakeUrgent()) return Build(*urgent);
  return Make(NextInCycle(), now);
}

void OnAir::Follow(AirTime now) {
  if (changes_ == coder_.Changes()) return;
  changes_ = coder_.Changes();
  clock_.Follow(coder_, now);
  FollowValues();
  plan_.Follow(coder_);
  if (items_.Follow(coder_)) item_ = items_.At(clock_.Local(now));
  names_.Follow(coder_);
  frequencies_.Follow(coder_);
  texts_.Follow(coder_);
  type_name_.Follow(coder_);
  channels_.Follow(coder_);
  pages_.Follow(coder_);
  traffic_.Follow(coder_);
  networks_.Follow(coder_);
  FollowCycle();
}

void OnAir::FollowValues() {
  const auto hex = [this](std::uint8_t command, std::size_t digits) {
    return HexAt(*coder_.Item(command), 0, digits);
  };
  const auto flag = [this](std::uint8_t command) { return FlagAt(*coder_.Item(command), 0); };
  head_.pi = static_cast<std::uint16_t>(hex(kPi, 4));
  head_.tp = flag(kTp);
  head_.pty = hex(kPty, 2) % 32;
  ta_ = flag(kTa);
  music_ = flag(kMs);
  di_ = hex(kDi, 1);
  ecc_ = hex(kEcc, 2);
  language_ = hex(kLic, 2);
  linkage_ = flag(kLi);
  // Location table, service, and a digit for each of four scopes.
  const Bytes system = *coder_.Item(kTmcSystem);
  traffic_table_ = {.table = HexAt(system, 0, 2),
                    .international = FlagAt(system, 4),
                    .national = FlagAt(system, 5),
                    .regional = FlagAt(system, 6),
                    .urban = FlagAt(system, 7)};
  traffic_service_ = {.service = HexAt(system, 2, 2)};
}

void OnAir::FollowTime(AirTime now) {
  const auto local = clock_.Local(now);
  if (local == minute_) return;
  minute_ = local;
  item_ = items_.At(local);
  const auto page = plan_.PageAt(*local);
  if (!page) return;
  const auto digit = static_cast<std::uint8_t>('0' + *page);
  coder_.SetItem(kPsnPageActive, 0, {&digit, 1});
  Follow(now);
}

void OnAir::FollowCycle() {
  if (enable_watch_.Changed(coder_)) {
    for (int group = 0; group < kGroups; ++group) {
      const Bytes body = *coder_.Item(kEnable, group);
      const bool enabled = FlagAt(body, 1);
      if (group == k4A) clock_enabled_ = enabled;
      enabled_[static_cast<std::size_t>(group)] = enabled && group != k4A ? HexAt(body, 2, 2) : 0;
    }
  }
  Repetitions wanted{};
  for (int group = 0; group < kGroups; ++group) {
    const int sent = HasSomethingToSay(group) ? group : k0A;
    wanted[static_cast<std::size_t>(sent)] += enabled_[static_cast<std::size_t>(group)];
  }
  if (wanted == in_cycle_ && !cycle_.empty()) return;
  in_cycle_ = wanted;
  texts_.SetInUse(wanted[k2A] > 0, wanted[k2B] > 0);
  const std::size_t done = place_;
  const std::size_t of = std::max<std::size_t>(cycle_.size(), 1);
  cycle_ = SpreadEvenly(wanted);
  if (cycle_.empty()) cycle_.push_back(k0A);
  // As far through as it was, so that a memory that keeps changing starves nobody.
  place_ = done * cycle_.size() / of;
}

bool OnAir::HasSomethingToSay(int group) const {
  switch (group) {
    case k0A:
    case k1A:
    case k0B:
    case k1B:
    case k15B:
      return true;
    case k2A:
    case k2B:
      return texts_.HasText();
    case k3A:
      return coder_.Written(kTmcSystem);
    case k5A:
      return channels_.HasData();
    case k6A:
      return pages_.HasText();
    case k8A:
      return traffic_.HasMessage();
    case k10A:
      return type_name_.HasName();
    case k14A:
      return networks_.HasPart();
    case k14B:
      return networks_.HasAnnouncement();
    default:
      return false;
  }
}

int OnAir::NextInCycle() {
  const int group = cycle_[place_];
  place_ = (place_ + 1) % cycle_.size();
  return group;
}

air::Switches OnAir::SwitchesAt(int segment) const {
  return {.ta = ta_, .music = music_, .di = (di_ & air::DiOf(segment)) != 0, .segment = segment};
}

air::Group OnAir::Make(int group, AirTime now) {
  switch (group) {
    case k1A: {
      tells_country_ = !tells_country_;
      const auto variant = tells_country_ ? air::SlowLabel::kCountry : air::SlowLabel::kLanguage;
      return Build(air::Group1A{
          .label =
              air::SlowLabel{
                  .la = linkage_, .variant = variant, .content = tells_country_ ? ecc_ : language_},
          .item = item_});
    }
    case k1B:
      return Build(air::Group1B{.item = item_});
    case k2A:
      return Build(texts_.NextLong(now));
    case k2B:
      return Build(texts_.NextShort(now));
    case k3A:
      tells_table_ = !tells_table_;
      return Build(air::Group3A{
          .carrier = air::Group8A::kKind,
          .message = tells_table_ ? air::WordOf(traffic_table_) : air::WordOf(traffic_service_),
          .application = air::Group3A::kTrafficMessages});
    case k5A:
      return Build(channels_.Next());
    case k6A:
      return Build(pages_.Next(now));
    case k8A:
      return Build(traffic_.Next());
    case k10A:
      return Build(type_name_.Next());
    case k14A:
      return Build(networks_.NextPart());
    case k14B:
      return Build(networks_.NextAnnouncement());
    case k15B: {
      const air::Group15B switches{.switches = SwitchesAt(switch_segment_)};
      switch_segment_ = (switch_segment_ + 1) % 4;
      return Build(switches);
    }
    default: {
      const auto name = names_.Next(now, minute_);
      const auto switches = SwitchesAt(name.number);
      if (group == k0B) {
        return Build(air::Group0B{.switches = switches, .characters = name.characters});
      }
      return Build(air::Group0A{
          .switches = switches, .frequencies = frequencies_.Next(), .characters = name.characters});
    }
  }
}

}  // namespace corvalis::coder
