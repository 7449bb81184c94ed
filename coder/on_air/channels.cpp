#include "coder/on_air/channels.h"

#include <array>
#include <cstdint>

#include "coder/digits.h"

namespace corvalis::coder {

namespace {

constexpr int kChannels = 31;         // items 0 to 30 are the channels from 1 on
constexpr int kFirstSubchannel = 32;  // of channel 0
constexpr int kItems = 131;

}  // namespace

void ChannelRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  std::vector<air::Group5A> data;
  const auto add = [&](int number, int channel) {
    // Enabled, and the 32 bits as hexadecimal digits.
    const Bytes body = *coder.Item(kTdc, number);
    if (!FlagAt(body, 0)) return;
    std::array<std::uint8_t, 4> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      bytes[i] = static_cast<std::uint8_t>(HexAt(body, 1 + 2 * i, 2));
    }
    data.push_back({.channel = channel, .bytes = air::FourBytes::Of(bytes)});
  };
  for (int number = kFirstSubchannel; number < kItems; ++number) add(number, 0);
  for (int number = 0; number < kChannels; ++number) add(number, number + 1);
  if (data == data_) return;
  data_ = std::move(data);
  at_ = 0;
}

air::Group5A ChannelRotation::Next() {
  const air::Group5A next = data_[at_];
  at_ = (at_ + 1) % data_.size();
  return next;
}

}  // namespace corvalis::coder
