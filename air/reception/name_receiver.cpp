#include "air/reception/name_receiver.h"

#include <cstddef>

namespace corvalis::air {

namespace {

constexpr int kSegments = 4;

}  // namespace

void NameReceiver::Hear(int segment, const std::optional<BytePair>& characters,
                        const Moment& moment, ServiceName& name) {
  const auto at = static_cast<std::size_t>(segment) * 2;
  const auto bit = static_cast<std::uint8_t>(1U << segment);
  // Between a segment and the next one of another name stand the rest of its own name and the
  // beginning of the other: four groups.
  const bool gap = moment.LostSince(moment_) >= kSegments;
  const bool again = !gap && segment == last_ && (name.segments & bit) != 0 && characters &&
                     name.building[at] == (*characters)[0] &&
                     name.building[at + 1] == (*characters)[1];
  if (again) {
    moment_ = moment;
    return;
  }
  if (gap || segment <= last_) {
    name.building.fill(' ');
    name.segments = 0;
  }
  const bool follows = segment == 0 || (!gap && segment == next_);
  last_ = segment;
  moment_ = moment;
  next_ = follows && characters ? segment + 1 : 0;
  if (!characters) return;
  name.building[at] = (*characters)[0];
  name.building[at + 1] = (*characters)[1];
  name.segments |= bit;
  if (name.now.hearing == Hearing::kNot) name.now.hearing = Hearing::kBeing;
  if (next_ < kSegments) return;
  next_ = 0;
  name.now.Believe(name.building, moment.at);
  name.names.Hear(name.building, moment.at);
}

}  // namespace corvalis::air
