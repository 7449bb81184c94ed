#include "coder/on_air.h"

#include <algorithm>
#include <cstdlib>

#include "coder/commands.h"
#include "coder/digits.h"

namespace corvalis::coder {

namespace {

// Groups as the sequence counts them.
constexpr int kB = 16;  // and a number: its B group
constexpr int k0A = 0;
constexpr int k1A = 1;
constexpr int k2A = 2;
constexpr int k3A = 3;
constexpr int k4A = 4;
constexpr int k5A = 5;
constexpr int k6A = 6;
constexpr int k8A = 8;
constexpr int k10A = 10;
constexpr int k14A = 14;
constexpr int k15A = 15;

// The group whose end is nearest to the end of a minute tells the time. At the moment it begins,
// this is how far ahead the minute may lie that it tells.
constexpr AirTime kTellsAhead = kGroupTime + kGroupTime / 2;

// Longer than that the plan does not make up for, if nobody asked for a group.
constexpr std::chrono::minutes kMadeUp{24 * 60};

constexpr int kLanguage = 3 << 12;  // in 1A
// A traffic message in 8A is a single group; 3A tells where they are and what they refer to.
constexpr int kSingleGroup = 1 << 3;
constexpr int kIn8A = 8 << 1;
constexpr int kService = 1 << 14;
constexpr int kTrafficMessages = 0xCD46;

int Bit(bool flag, int at) { return flag ? 1 << at : 0; }

}  // namespace

OnAir::OnAir(Coder& coder) : coder_(coder) {}

Group OnAir::Next(AirTime now) {
  Follow(now);
  FollowTime(now);

  const auto tells = clock_.Local(now + kTellsAhead);
  if (tells != told_) {
    told_ = tells;
    if (clock_enabled_) return MakeClockTime();
  }
  if (const auto urgent = networks_.TakeUrgent()) return MakeAnnouncement(*urgent);
  return Make(NextInCycle(), now);
}

void OnAir::Follow(AirTime now) {
  if (changes_ == coder_.Changes()) return;
  changes_ = coder_.Changes();
  if (clock_.Follow(coder_, now)) minute_.reset();
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
  pi_ = hex(kPi, 4);
  tp_ = flag(kTp);
  pty_ = hex(kPty, 2) % 32;
  ta_ = flag(kTa);
  music_ = flag(kMs);
  di_ = hex(kDi, 1);
  ecc_ = hex(kEcc, 2);
  language_ = hex(kLic, 2);
  linkage_ = flag(kLi);
  // Location table, service, and a digit for each of four scopes.
  const Bytes system = *coder_.Item(kTmcSystem);
  traffic_table_ = HexAt(system, 0, 2) << 6 | DigitsAt(system, 4, 4, 2);
  traffic_service_ = kService | HexAt(system, 2, 2) << 6;
}

void OnAir::FollowTime(AirTime now) {
  const auto local = clock_.Local(now);
  if (local == minute_) return;
  const LocalMinute last = minute_.value_or(*local - std::chrono::minutes(1));
  minute_ = local;
  item_ = items_.At(local);
  std::optional<int> page;
  for (LocalMinute minute = std::max(last, *local - kMadeUp); minute < *local;) {
    minute += std::chrono::minutes(1);
    if (const auto at = plan_.PageAt(minute)) page = at;
  }
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
  texts_.SetInUse(wanted[k2A] > 0, wanted[kB + k2A] > 0);
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
    case kB + k0A:
    case kB + k1A:
    case kB + k15A:
      return true;
    case k2A:
    case kB + k2A:
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
    case kB + k14A:
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

GroupHead OnAir::HeadOf(int group) const {
  return {.pi = pi_, .tp = tp_, .pty = pty_, .type = group % kB, .is_b = group >= kB};
}

// TA, M/S, and the bit of DI that goes with a segment.
int OnAir::SwitchBits(int segment) const {
  return Bit(ta_, 4) | Bit(music_, 3) | Bit((di_ >> (3 - segment) & 1) != 0, 2) | segment;
}

Group OnAir::MakeClockTime() const {
  constexpr int kDaysBefore1970 = 40587;
  const UtcMinute utc = clock_.Utc(*told_);
  const auto today = std::chrono::floor<std::chrono::days>(utc);
  const int day = static_cast<int>(today.time_since_epoch().count()) + kDaysBefore1970;
  const int hour = static_cast<int>((utc - today).count()) / 60;
  const int minute = static_cast<int>((utc - today).count()) % 60;
  const int offset = clock_.OffsetHalfHours();
  return HeadOf(k4A).With(day >> 15, (day & 0x7FFF) << 1 | hour >> 4,
                          (hour & 0xF) << 12 | minute << 6 | Bit(offset < 0, 5) | std::abs(offset));
}

Group OnAir::MakeAnnouncement(const NetworkRotation::Announcement& told) const {
  return HeadOf(kB + k14A).With(Bit(told.tp, 4) | Bit(told.ta, 3), 0, told.pi);
}

Group OnAir::Make(int group, AirTime now) {
  const GroupHead head = HeadOf(group);
  const auto four = [&](int own, const std::array<std::uint8_t, 4>& bytes) {
    return head.With(own, TwoBytes(bytes[0], bytes[1]), TwoBytes(bytes[2], bytes[3]));
  };
  switch (group) {
    case k1A:
      tells_country_ = !tells_country_;
      return head.With(0, Bit(linkage_, 15) | (tells_country_ ? ecc_ : kLanguage | language_),
                       item_);
    case kB + k1A:
      return head.With(0, 0, item_);
    case k2A: {
      const auto text = texts_.NextLong(now);
      return four(Bit(text.flag, 4) | text.number, text.characters);
    }
    case kB + k2A: {
      const auto text = texts_.NextShort(now);
      return head.With(Bit(text.flag, 4) | text.number, 0,
                       TwoBytes(text.characters[0], text.characters[1]));
    }
    case k3A:
      tells_table_ = !tells_table_;
      return head.With(kIn8A, tells_table_ ? traffic_table_ : traffic_service_, kTrafficMessages);
    case k5A: {
      const auto data = channels_.Next();
      return four(data.channel, data.bytes);
    }
    case k6A: {
      const auto text = pages_.Next(now);
      return four(text.page, text.characters);
    }
    case k8A: {
      const auto& message = traffic_.Next();
      return head.With(kSingleGroup | message.duration,
                       Bit(message.diversion, 15) | Bit(message.direction, 14) |
                           message.extent << 11 | message.event,
                       message.location);
    }
    case k10A: {
      const auto name = type_name_.Next();
      return four(Bit(name.flag, 4) | name.number, name.characters);
    }
    case k14A: {
      const auto part = networks_.NextPart();
      return head.With(Bit(part.tp, 4) | part.variant, part.content, part.pi);
    }
    case kB + k14A:
      return MakeAnnouncement(networks_.NextAnnouncement());
    case kB + k15A: {
      Group switches = head.With(SwitchBits(switch_segment_), 0, 0);
      switches.blocks[3] = switches.blocks[1];
      switch_segment_ = (switch_segment_ + 1) % 4;
      return switches;
    }
    default: {
      const auto name = names_.Next(now, minute_);
      const auto pair = group == k0A ? frequencies_.Next() : FrequencyRotation::Pair{};
      return head.With(SwitchBits(name.number), TwoBytes(pair[0], pair[1]),
                       TwoBytes(name.characters[0], name.characters[1]));
    }
  }
}

}  // namespace corvalis::coder
