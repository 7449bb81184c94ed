#include "air/groups.h"

#include <type_traits>

#include "air/layout.h"

namespace corvalis::air {

namespace {

constexpr std::chrono::days kJulianDayOf1970{40587};

template <typename Way>
void Lay(Way& way, typename Way::template Of<Switches>& switches) {
  way.Field(kOwn + 4, 1, switches.ta);
  way.Field(kOwn + 3, 1, switches.music);
  way.Field(kOwn + 2, 1, switches.di);
  way.Field(kOwn, 2, switches.segment);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<FourBytes>& bytes) {
  way.Block(kThird, bytes.first);
  way.Block(kFourth, bytes.second);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group0A>& group) {
  Lay(way, group.switches);
  way.Block(kThird, group.frequencies);
  way.Block(kFourth, group.characters);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group0B>& group) {
  Lay(way, group.switches);
  way.Block(kFourth, group.characters);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group1A>& group) {
  way.Block(kThird, group.label);
  way.Block(kFourth, group.item);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group1B>& group) {
  way.Block(kFourth, group.item);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group2A>& group) {
  way.Field(kOwn + 4, 1, group.flag);
  way.Field(kOwn, 4, group.segment);
  Lay(way, group.characters);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group2B>& group) {
  way.Field(kOwn + 4, 1, group.flag);
  way.Field(kOwn, 4, group.segment);
  way.Block(kFourth, group.characters);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group3A>& group) {
  way.Field(kOwn + 1, 4, group.carrier.number);
  way.Field(kOwn, 1, group.carrier.version_b);
  way.Block(kThird, group.message);
  way.Field(kFourth, 16, group.application);
}

// The day begins in block 2, and the hour in block 3.
template <typename Way>
void Lay(Way& way, typename Way::template Of<Group4A>& group) {
  way.Field(kThird + 1, 17, group.day);
  way.Field(kFourth + 12, 5, group.hour);
  way.Field(kFourth + 6, 6, group.minute);
  way.Signed(kFourth, 5, group.offset_half_hours);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group5A>& group) {
  way.Field(kOwn, kOwnBits, group.channel);
  Lay(way, group.bytes);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group5B>& group) {
  way.Field(kOwn, kOwnBits, group.channel);
  way.Block(kFourth, group.bytes);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group6A>& group) {
  way.Field(kOwn, kOwnBits, group.own);
  Lay(way, group.bytes);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group6B>& group) {
  way.Field(kOwn, kOwnBits, group.own);
  way.Block(kFourth, group.bytes);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group8A>& group) {
  way.Field(kOwn + 4, 1, group.tuning);
  way.Field(kOwn + 3, 1, group.single);
  way.Field(kOwn, 3, group.duration);
  way.Field(kThird + 15, 1, group.diversion);
  way.Field(kThird + 14, 1, group.direction);
  way.Field(kThird + 11, 3, group.extent);
  way.Field(kThird, 11, group.event);
  way.Field(kFourth, 16, group.location);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group10A>& group) {
  way.Field(kOwn + 4, 1, group.flag);
  way.Field(kOwn, 1, group.segment);
  Lay(way, group.characters);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group14A>& group) {
  way.Field(kOwn + 4, 1, group.tp);
  way.Field(kOwn, 4, group.variant);
  way.Block(kThird, group.content);
  way.Field(kFourth, 16, group.pi);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group14B>& group) {
  way.Field(kOwn + 4, 1, group.tp);
  way.Field(kOwn + 3, 1, group.ta);
  way.Field(kFourth, 16, group.pi);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Group15B>& group) {
  Lay(way, group.switches);
}

}  // namespace

Group4A Group4A::Of(Minute utc, int offset_half_hours) {
  const auto today = std::chrono::floor<std::chrono::days>(utc);
  const std::chrono::hh_mm_ss time(utc - today);
  return {.day = static_cast<int>((today.time_since_epoch() + kJulianDayOf1970).count()),
          .hour = static_cast<int>(time.hours().count()),
          .minute = static_cast<int>(time.minutes().count()),
          .offset_half_hours = offset_half_hours};
}

std::optional<Group4A::Minute> Group4A::Utc() const {
  if (hour >= 24 || minute >= 60) return std::nullopt;
  return Minute(std::chrono::days(day) - kJulianDayOf1970 + std::chrono::hours(hour) +
                std::chrono::minutes(minute));
}

template <typename Body>
Group Build(const Head& head, const Body& body) {
  Writer writer;
  Lay(writer, body);
  const std::uint16_t second = WordOf(
      SecondBlock{.kind = Body::kKind, .tp = head.tp, .pty = head.pty, .own = writer.WordAt(kOwn)});
  return {{head.pi, second, Body::kKind.version_b ? head.pi : writer.WordAt(kThird),
           std::is_same_v<Body, Group15B> ? second : writer.WordAt(kFourth)}};
}

template <typename Body>
std::optional<Body> Take(const HeardGroup& group) {
  const auto& [first, second, third, fourth] = group.blocks;
  if (!second) return std::nullopt;
  const auto head = FromWord<SecondBlock>(*second);
  if (head.kind != Body::kKind) return std::nullopt;
  const auto bits = [](int value, int low) { return static_cast<std::uint64_t>(value) << low; };
  constexpr int kAll = 0xFFFF;
  Reader reader(
      bits(head.own, kOwn) | bits(third.value_or(0), kThird) | fourth.value_or(0),
      bits(kAll, kOwn) | bits(third ? kAll : 0, kThird) | bits(fourth ? kAll : 0, kFourth));
  Body body;
  Lay(reader, body);
  if (!reader.Whole()) return std::nullopt;
  return body;
}

template Group Build(const Head& head, const Group0A& body);
template Group Build(const Head& head, const Group0B& body);
template Group Build(const Head& head, const Group1A& body);
template Group Build(const Head& head, const Group1B& body);
template Group Build(const Head& head, const Group2A& body);
template Group Build(const Head& head, const Group2B& body);
template Group Build(const Head& head, const Group3A& body);
template Group Build(const Head& head, const Group4A& body);
template Group Build(const Head& head, const Group5A& body);
template Group Build(const Head& head, const Group5B& body);
template Group Build(const Head& head, const Group6A& body);
template Group Build(const Head& head, const Group6B& body);
template Group Build(const Head& head, const Group8A& body);
template Group Build(const Head& head, const Group10A& body);
template Group Build(const Head& head, const Group14A& body);
template Group Build(const Head& head, const Group14B& body);
template Group Build(const Head& head, const Group15B& body);

template std::optional<Group0A> Take(const HeardGroup& group);
template std::optional<Group0B> Take(const HeardGroup& group);
template std::optional<Group1A> Take(const HeardGroup& group);
template std::optional<Group1B> Take(const HeardGroup& group);
template std::optional<Group2A> Take(const HeardGroup& group);
template std::optional<Group2B> Take(const HeardGroup& group);
template std::optional<Group3A> Take(const HeardGroup& group);
template std::optional<Group4A> Take(const HeardGroup& group);
template std::optional<Group5A> Take(const HeardGroup& group);
template std::optional<Group5B> Take(const HeardGroup& group);
template std::optional<Group6A> Take(const HeardGroup& group);
template std::optional<Group6B> Take(const HeardGroup& group);
template std::optional<Group8A> Take(const HeardGroup& group);
template std::optional<Group10A> Take(const HeardGroup& group);
template std::optional<Group14A> Take(const HeardGroup& group);
template std::optional<Group14B> Take(const HeardGroup& group);
template std::optional<Group15B> Take(const HeardGroup& group);

}  // namespace corvalis::air
