#include "air/receiver.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

#include "air/groups.h"
#include "air/reception/clock_receiver.h"
#include "air/reception/frequency_receiver.h"
#include "air/reception/group_counter.h"
#include "air/reception/moment.h"
#include "air/reception/name_receiver.h"
#include "air/reception/network_receiver.h"
#include "air/reception/page_receiver.h"
#include "air/reception/station_gate.h"
#include "air/reception/text_receiver.h"
#include "air/words.h"

namespace corvalis::air {

namespace {

constexpr AirSeconds kSilence = 15;
constexpr std::uint64_t kLostInABreak = 1000;  // groups, more than any rule asks for

template <typename Body, typename Does>
void Have(const HeardGroup& group, const Does& does) {
  if (const auto said = Take<Body>(group)) does(*said);
}

}  // namespace

struct Receiver::Parts {
  Reception reception;
  StationGate gate;
  Moment moment;  // of the group that is being taken
  AirSeconds now = 0;
  AirSeconds heard_at = 0;  // the last group
  bool started = false;

  GroupCounter counter;
  // What hangs on one station.
  struct Station {
    NameReceiver name;
    TextReceiver text_a{2};
    TextReceiver text_b{1};
    FrequencyReceiver frequencies;
    ClockReceiver clock;
    PageReceiver pages;
    std::optional<bool> type_name_flag;
  } station;

  void Break();
  void GoTo(AirSeconds at);
  void Forget();
  void TellStation(AirSeconds at);
  void Count(const HeardGroup& group);
  void Take(const HeardGroup& group);
  void Dispatch(GroupKind kind, const HeardGroup& group);
  void TakeSwitches(const Switches& switches);
  void TakeSlow(const Group1A& group);
  void TakeApplication(const Group3A& group);
  void TakeTypeName(const Group10A& group);
};

void Receiver::Parts::Break() {
  gate.Break();
  moment.group += kLostInABreak;
  moment.lost += kLostInABreak;
}

// What is no time, or goes back, is now.
void Receiver::Parts::GoTo(AirSeconds at) {
  if (!std::isfinite(at) || (started && at < now)) return;
  now = at;
  started = true;
}

void Receiver::Parts::Forget() {
  reception = {};
  station = {};
  counter = {};
}

void Receiver::Parts::TellStation(AirSeconds at) {
  Item<std::uint16_t>& pi = reception.pi;
  if (gate.Station()) pi.Believe(*gate.Station(), at);
  pi.waits = gate.Candidate().has_value();
  if (pi.waits) pi.coming = *gate.Candidate();
  if (pi.waits && pi.hearing == Hearing::kNot) pi.hearing = Hearing::kBeing;
}

void Receiver::Parts::Count(const HeardGroup& group) {
  const auto head = HeadOf(group);
  const auto kind = static_cast<std::size_t>(head ? head->kind.Index() : kGroupKinds);
  const auto missing = std::count(group.blocks.begin(), group.blocks.end(), std::nullopt);
  counter.Count(kind, static_cast<std::size_t>(missing), now, reception.groups);
}

void Receiver::Parts::Take(const HeardGroup& group) {
  const auto head = HeadOf(group);
  if (head) {
    reception.tp.Hear(head->tp, moment.at);
    reception.pty.Hear(head->pty, moment.at);
    Dispatch(head->kind, group);
  } else {
    ++moment.lost;
  }
  ++moment.group;
}

void Receiver::Parts::Dispatch(GroupKind kind, const HeardGroup& group) {
  const AirSeconds at = moment.at;
  Reception& heard = reception;
  switch (kind.Index()) {
    case Group0A::kKind.Index():
      return Have<Group0A>(group, [&](const Group0A& said) {
        TakeSwitches(said.switches);
        station.name.Hear(said.switches.segment, said.characters, moment, heard.ps);
        station.frequencies.Hear(said.frequencies, moment, heard.frequencies);
      });
    case Group0B::kKind.Index():
      return Have<Group0B>(group, [&](const Group0B& said) {
        TakeSwitches(said.switches);
        station.name.Hear(said.switches.segment, said.characters, moment, heard.ps);
      });
    case Group1A::kKind.Index():
      return Have<Group1A>(group, [&](const Group1A& said) { TakeSlow(said); });
    case Group1B::kKind.Index():
      return Have<Group1B>(group, [&](const Group1B& said) {
        if (said.item) heard.item.Hear(*said.item, at);
      });
    case Group2A::kKind.Index():
      return Have<Group2A>(group, [&](const Group2A& said) {
        const std::array pairs{said.characters.first, said.characters.second};
        station.text_a.Hear(said.flag, static_cast<std::size_t>(said.segment), pairs, moment,
                            heard.rt);
      });
    case Group2B::kKind.Index():
      return Have<Group2B>(group, [&](const Group2B& said) {
        const std::array pairs{said.characters};
        station.text_b.Hear(said.flag, static_cast<std::size_t>(said.segment), pairs, moment,
                            heard.rt);
      });
    case Group3A::kKind.Index():
      return Have<Group3A>(group, [&](const Group3A& said) { TakeApplication(said); });
    case Group4A::kKind.Index():
      return Have<Group4A>(
          group, [&](const Group4A& said) { station.clock.Hear(said, moment, heard.clock); });
    case Group5A::kKind.Index():
      return Have<Group5A>(group, [&](const Group5A& said) {
        const auto& [first, second] = said.bytes;
        if (!first || !second) return;
        heard.channels.at(static_cast<std::size_t>(said.channel))
            .Hear({.bytes = {(*first)[0], (*first)[1], (*second)[0], (*second)[1]}}, at);
      });
    case Group5B::kKind.Index():
      return Have<Group5B>(group, [&](const Group5B& said) {
        if (!said.bytes) return;
        heard.channels.at(static_cast<std::size_t>(said.channel))
            .Hear({.bytes = {(*said.bytes)[0], (*said.bytes)[1]}, .count = 2}, at);
      });
    case Group6A::kKind.Index():
      return Have<Group6A>(
          group, [&](const Group6A& said) { station.pages.Hear(said, moment, heard.pages); });
    case Group8A::kKind.Index():
      return Have<Group8A>(group, [&](const Group8A& said) {
        if (said.single && !said.tuning) heard.traffic.messages.Hear(said, at);
      });
    case Group10A::kKind.Index():
      return Have<Group10A>(group, [&](const Group10A& said) { TakeTypeName(said); });
    case Group14A::kKind.Index():
      return Have<Group14A>(group, [&](const Group14A& said) { HearNetwork(said, at, heard); });
    case Group14B::kKind.Index():
      return Have<Group14B>(group, [&](const Group14B& said) { HearNetwork(said, at, heard); });
    case Group15B::kKind.Index():
      return Have<Group15B>(group, [&](const Group15B& said) {
        // Its fourth block is the second again.
        if (!group.blocks[3] || group.blocks[3] == group.blocks[1]) TakeSwitches(said.switches);
      });
    default:
      return;
  }
}

void Receiver::Parts::TakeSwitches(const Switches& switches) {
  const AirSeconds at = moment.at;
  reception.ta.Hear(switches.ta, at);
  reception.music.Hear(switches.music, at);
  switch (DiOf(switches.segment)) {
    case kStereo:
      return reception.stereo.Hear(switches.di, at);
    case kArtificialHead:
      return reception.artificial_head.Hear(switches.di, at);
    case kCompressed:
      return reception.compressed.Hear(switches.di, at);
    case kDynamicPty:
      return reception.dynamic_pty.Hear(switches.di, at);
  }
}

void Receiver::Parts::TakeSlow(const Group1A& group) {
  const AirSeconds at = moment.at;
  if (group.item) reception.item.Hear(*group.item, at);
  if (!group.label) return;
  reception.linked.Hear(group.label->la, at);
  if (group.label->variant == SlowLabel::kCountry) reception.country.Hear(group.label->Code(), at);
  if (group.label->variant == SlowLabel::kLanguage) {
    reception.language.Hear(group.label->Code(), at);
  }
}

void Receiver::Parts::TakeApplication(const Group3A& group) {
  const AirSeconds at = moment.at;
  Application& application =
      reception.applications.at(static_cast<std::size_t>(group.carrier.Index()));
  application.id.Hear(group.application, at);
  if (!group.message) return;
  application.message.Hear(*group.message, at);
  if (group.application != Group3A::kTrafficMessages) return;
  const auto table = FromWord<TrafficTable>(*group.message);
  const auto service = FromWord<TrafficService>(*group.message);
  if (table.variant == TrafficTable::kVariant) reception.traffic.table.Hear(table, at);
  if (service.variant == TrafficService::kVariant) reception.traffic.service.Hear(service, at);
}

void Receiver::Parts::TakeTypeName(const Group10A& group) {
  NamePieces& pieces = reception.type_name_building;
  if (station.type_name_flag != group.flag) pieces = {};
  station.type_name_flag = group.flag;
  reception.type_name_flag = group.flag;
  if (reception.type_name.hearing == Hearing::kNot) reception.type_name.hearing = Hearing::kBeing;
  const auto first = 2 * static_cast<std::size_t>(group.segment);
  const auto hear = [&](std::size_t pair, const std::optional<BytePair>& characters) {
    if (characters && pieces.Hear(pair, *characters)) {
      reception.type_name.Believe(pieces.Bytes(), moment.at);
    }
  };
  hear(first, group.characters.first);
  hear(first + 1, group.characters.second);
}

Receiver::Receiver() : parts_(std::make_unique<Parts>()) {}
Receiver::Receiver(Receiver&&) noexcept = default;
Receiver& Receiver::operator=(Receiver&&) noexcept = default;
Receiver::~Receiver() = default;

void Receiver::Hear(const HeardGroup& group, AirSeconds at) {
  Parts& parts = *parts_;
  const bool first = !parts.started;
  parts.GoTo(at);
  if (!first && parts.now - parts.heard_at >= kSilence) parts.Break();
  parts.heard_at = parts.now;
  if (parts.gate.Take(group, parts.now)) parts.Forget();
  parts.Count(group);
  parts.TellStation(parts.now);
  parts.moment.group += parts.gate.LostBefore();
  parts.moment.lost += parts.gate.LostBefore();
  for (const StationGate::Passed& passed : parts.gate.Through()) {
    parts.moment.at = passed.at;
    parts.Take(passed.foreign ? HeardGroup{} : passed.group);
  }
}

void Receiver::Break() { parts_->Break(); }

void Receiver::Pass(AirSeconds now) {
  parts_->GoTo(now);
  parts_->counter.Pass(parts_->now, parts_->reception.groups);
}

const Reception& Receiver::Heard() const { return parts_->reception; }

}  // namespace corvalis::air
