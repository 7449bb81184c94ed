#include "air/reception/network_receiver.h"

#include <algorithm>

#include "air/af_codes.h"
#include "air/reception/frequency_stream.h"

namespace corvalis::air {

namespace {

OtherNetwork& NetworkOf(std::uint16_t pi, AirSeconds at, std::vector<OtherNetwork>& networks) {
  auto network = std::find_if(networks.begin(), networks.end(),
                              [pi](const OtherNetwork& other) { return other.pi == pi; });
  if (network == networks.end()) {
    MakeRoom(networks, OtherNetwork::kMost);
    network = networks.insert(networks.end(), OtherNetwork{});
    network->pi = pi;
    network->first = at;
  }
  if (network->times < UINT32_MAX) ++network->times;
  network->last = at;
  return *network;
}

void HearFrequencies(const BytePair& codes, AirSeconds at, OtherNetwork& network) {
  FrequencyStream stream;
  for (const std::uint8_t code : codes) {
    if (const auto frequency = stream.Take(code)) network.frequencies.Hear(*frequency, at);
  }
}

void HearPair(const BytePair& codes, std::uint8_t prefix, AirSeconds at, OtherNetwork& network) {
  const FrequencyPair pair{.own = {.code = codes[0]},
                           .other = {.prefix = prefix, .code = codes[1]}};
  if (IsFrequency(pair.own) && IsFrequency(pair.other)) network.pairs.Hear(pair, at);
}

}  // namespace

void HearNetwork(const Group14A& group, AirSeconds at, Reception& reception) {
  if (group.pi == reception.pi.value) {
    if (group.variant == Group14A::kLinkage && group.content) {
      reception.linkage.Hear(FromWord<Linkage>(*group.content), at);
    }
    return;
  }
  OtherNetwork& network = NetworkOf(group.pi, at, reception.networks);
  network.tp.Hear(group.tp, at);
  if (!group.content) return;
  const auto pair = FromWord<BytePair>(*group.content);
  if (group.variant <= Group14A::kLastName) {
    if (network.name.hearing == Hearing::kNot) network.name.hearing = Hearing::kBeing;
    if (network.building.Hear(static_cast<std::size_t>(group.variant), pair)) {
      network.name.Believe(network.building.Bytes(), at);
    }
  } else if (group.variant == Group14A::kFrequencies) {
    HearFrequencies(pair, at, network);
  } else if (group.variant <= Group14A::kLastPair) {
    HearPair(pair, 0, at, network);
  } else if (group.variant == Group14A::kAmPair) {
    HearPair(pair, kLfOrMfNext, at, network);
  } else if (group.variant == Group14A::kLinkage) {
    network.linkage.Hear(FromWord<Linkage>(*group.content), at);
  } else if (group.variant == Group14A::kTypeAndAnnouncement) {
    const auto told = FromWord<TypeAndAnnouncement>(*group.content);
    network.pty.Hear(told.pty, at);
    network.ta.Hear(told.ta, at);
  } else if (group.variant == Group14A::kItem) {
    network.item.Hear(FromWord<ItemNumber>(*group.content), at);
  }
}

void HearNetwork(const Group14B& group, AirSeconds at, Reception& reception) {
  if (group.pi == reception.pi.value) return;
  OtherNetwork& network = NetworkOf(group.pi, at, reception.networks);
  network.tp.Hear(group.tp, at);
  network.ta.Hear(group.ta, at);
}

}  // namespace corvalis::air
