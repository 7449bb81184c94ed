#include "coder/on_air/traffic.h"

#include <cstdint>

#include "coder/digits.h"

namespace corvalis::coder {

namespace {

constexpr int kTimes = 3;  // a radio believes what comes again

}  // namespace

void TrafficRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  std::vector<Message> messages;
  for (int number = 0; number < coder.Sizes().tmc; ++number) {
    const Bytes body = *coder.Item(kTmc, number);
    const int event = HexAt(body, 0, 3);
    if (event == 0) continue;
    const air::Group8A group{.single = true,
                             .duration = HexAt(body, 10, 1),
                             .diversion = FlagAt(body, 9),
                             .direction = FlagAt(body, 7),
                             .extent = HexAt(body, 8, 1),
                             .event = event,
                             .location = static_cast<std::uint16_t>(HexAt(body, 3, 4))};
    messages.push_back({.group = group, .times = kTimes + HexAt(body, 11, 1)});
  }
  if (messages == messages_) return;
  messages_ = std::move(messages);
  at_ = 0;
  sent_ = 0;
}

const air::Group8A& TrafficRotation::Next() {
  if (sent_ == messages_[at_].times) {
    sent_ = 0;
    at_ = (at_ + 1) % messages_.size();
  }
  ++sent_;
  return messages_[at_].group;
}

}  // namespace corvalis::coder
