#include "networks/tdc0_data.h"

#include <algorithm>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/serial_management.h"
#include "link/station_commands.h"
#include "networks/tdc_data.h"

namespace corvalis {

Tdc0Data* tdc0Data = nullptr;

namespace {

constexpr const char* kSection = "TDC0";

// The Coder's table of channels: subchannels but the first stand behind all channels, and number
// 31 stands for nothing. The first shares its number with channel 1. That is meant.
std::uint8_t Number(std::int16_t i) { return static_cast<std::uint8_t>(i == 0 ? 0 : i + 31); }

std::string Key(int i) { return "Ch" + Digits(i, 2); }

}  // namespace

Tdc0Data::Tdc0Data() { GetIni(); }

std::string Tdc0Data::AddressText(std::int16_t i) const {
  return HexDigits(Address(i), kTdc0AddressDigits, kTdc0AddressDigits);
}

void Tdc0Data::SetCommand(std::int16_t i, const std::string& text) {
  At(i).command = Padded(text, kTdc0Bits);
}

void Tdc0Data::GetOneRds(std::int16_t i) {
  std::array<std::uint8_t, kTdcPayload> payload{};
  bool active = false;
  ReadTdc(Number(i), payload, active);
  if (LinkError != kLinkOk) return;
  const std::string digits(payload.begin(), payload.end());
  At(i).address = static_cast<std::int16_t>(HexToLong(digits.substr(0, kTdc0AddressDigits)));
  SetCommand(i, HexToBits(digits.substr(kTdc0AddressDigits), kTdc0Bits));
  At(i).active = active;
}

void Tdc0Data::SendOneRds(std::int16_t i) const {
  const std::string digits = AddressText(i) + TdcDigits(Command(i));
  std::array<std::uint8_t, kTdcPayload> payload{};
  std::copy_n(digits.begin(), payload.size(), payload.begin());
  SendTdc(Number(i), payload, Active(i));
}

void Tdc0Data::GetIni() {
  for (std::int16_t i = 0; i < kSubChannels; ++i) {
    const std::string text = ReadIniKey(kSection, Key(i));
    At(i) = {};
    if (text.empty()) continue;
    std::string command;
    JoinedReader(text).Hex(At(i).address).Switch(At(i).active).Text(command);
    SetCommand(i, command);
  }
}

void Tdc0Data::SetIni() const {
  for (std::int16_t i = 0; i < kSubChannels; ++i) {
    WriteIniKey(kSection, Key(i),
                JoinedWriter().Add(AddressText(i)).Switch(Active(i)).Text(Command(i)).Ended());
  }
}

}  // namespace corvalis
