#include "air/reception/frequency_receiver.h"

#include <algorithm>

namespace corvalis::air {

namespace {

TransmitterFrequencies& ListOf(const HeardFrequency& tuned, FrequencySets& sets, AirSeconds at) {
  const auto known = std::find_if(sets.b.begin(), sets.b.end(),
                                  [&](const auto& list) { return list.tuned == tuned; });
  if (known != sets.b.end()) return *known;
  MakeRoom(sets.b, FrequencySets::kTransmitters);
  sets.b.push_back({.tuned = tuned, .times = 0, .first = at, .last = at});
  return sets.b.back();
}

}  // namespace

void FrequencyReceiver::Hear(const std::optional<BytePair>& codes, const Moment& moment,
                             FrequencySets& sets) {
  const auto lost =
      static_cast<int>(std::min<std::uint64_t>(moment.LostSince(moment_), 100)) + (codes ? 0 : 1);
  moment_ = moment;
  left_ = std::max(0, left_ - 2 * lost);
  if (lost > 0) {
    gap_ = true;
    lost_ = true;
    stream_ = {};
  }
  if (!codes) return;
  if (const auto count = CountOf((*codes)[0]); count && !stream_.IsInFrequency()) {
    Begin(*count, (*codes)[1], sets, moment.at);
  } else if (method_ != Method::kNone && (!gap_ || left_ > 0)) {
    const auto prefixes = std::count(codes->begin(), codes->end(), kLfOrMfNext);
    left_ = std::max(0, left_ - 2 + static_cast<int>(prefixes));
    TakePair(*codes, sets, moment.at);
  }
  lost_ = false;
}

void FrequencyReceiver::Begin(int count, std::uint8_t first, FrequencySets& sets, AirSeconds at) {
  method_ = count == 0 ? Method::kNone : Method::kOpen;
  left_ = count - 1;
  gap_ = false;
  lost_ = false;
  first_ = {.code = first};
  stream_ = {};
  if (count == 0) return;
  if (count == 1 || !IsFrequency(first_)) {
    method_ = Method::kA;
    TakeA(first, sets, at);
  }
}

void FrequencyReceiver::TakePair(const BytePair& codes, FrequencySets& sets, AirSeconds at) {
  if (method_ == Method::kOpen) {
    const bool again = codes[0] == first_.code || codes[1] == first_.code;
    if (again && !IsAfPrefix(codes[0])) {
      method_ = Method::kB;
      TransmitterFrequencies& list = ListOf(first_, sets, at);
      ++list.times;
      list.last = at;
    } else {
      method_ = Method::kA;
      sets.a.Hear(first_, at);
    }
  }
  if (method_ == Method::kB) {
    TakeB(codes, sets, at);
    return;
  }
  if (!lost_ || IsAfPrefix(codes[0])) TakeA(codes[0], sets, at);
  TakeA(codes[1], sets, at);
}

void FrequencyReceiver::TakeA(std::uint8_t code, FrequencySets& sets, AirSeconds at) {
  if (const auto frequency = stream_.Take(code)) sets.a.Hear(*frequency, at);
}

void FrequencyReceiver::TakeB(const BytePair& codes, FrequencySets& sets, AirSeconds at) const {
  const bool tuned_first = codes[0] == first_.code;
  if (!tuned_first && codes[1] != first_.code) return;
  const HeardFrequency other{.code = codes[tuned_first ? 1 : 0]};
  if (!IsFrequency(other) || other == first_) return;
  TransmitterFrequencies& list = ListOf(first_, sets, at);
  (codes[0] > codes[1] ? list.regional : list.same).Hear(other, at);
}

}  // namespace corvalis::air
