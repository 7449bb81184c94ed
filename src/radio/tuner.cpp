#include "radio/tuner.h"

#include <algorithm>

namespace corvalis::radio {

namespace {

constexpr air::AirSeconds kGroupSeconds = 104 / 1187.5;

}  // namespace

std::string Tuner::Open(const std::string& path) {
  Close();
  return source_.Open(path);
}

void Tuner::Close() {
  source_.Close();
  receiver_ = air::Receiver();
  opened_ = -1;
  now_ = 0;
  count_ = 0;
  ended_ = false;
}

bool Tuner::Listen(double steady) {
  if (opened_ < 0) opened_ = steady;
  portion_.clear();
  const bool more = source_.Read(portion_);
  // What comes again after an end is no continuation.
  if (ended_ && !portion_.empty()) receiver_.Break();
  ended_ = source_.Now() == GroupSource::State::kEnded;

  // A group takes its time on the air. More has passed if some never came, less if they all lay
  // there already.
  for (const air::HeardGroup& group : portion_) {
    now_ += kGroupSeconds;
    receiver_.Hear(group, now_);
  }
  count_ += portion_.size();
  if (!more && steady - opened_ > now_) {
    now_ = steady - opened_;
    receiver_.Pass(now_);
  }
  return more;
}

}  // namespace corvalis::radio
