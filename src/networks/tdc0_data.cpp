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
constexpr std::int16_t kAddressDigits = 3;
constexpr std::int32_t kAddressBits = 0xFFF;

// The Coder's table of channels: subchannels but the first stand behind all channels, and number
// 31 stands for nothing. The first shares its number with channel 1. That is meant.
std::uint8_t Number(std::int16_t i) { return static_cast<std::uint8_t>(i == 0 ? 0 : i + 31); }

std::string Key(int i) { return "Ch" + Digits(i, 2); }

std::string AddressDigits(std::int16_t address) {
  return LongToHex(address & kAddressBits, kAddressDigits);
}

}  // namespace

Tdc0Data::Tdc0Data() { GetIni(); }

void Tdc0Data::SetCommand(std::int16_t i, const std::string& text) {
  At(i).command = Padded(text, kTdc0Bits);
}

void Tdc0Data::GetOneRds(std::int16_t i) {
  std::array<std::uint8_t, kTdcPayload> payload{};
  bool active = false;
  ReadTdc(Number(i), payload, active);
  if (LinkError != kLinkOk) return;
  const std::string digits(payload.begin(), payload.end());
  At(i).address = static_cast<std::int16_t>(HexToLong(digits.substr(0, kAddressDigits)));
  SetCommand(i, HexToBits(digits.substr(kAddressDigits), kTdc0Bits));
  At(i).active = active;
}

void Tdc0Data::SendOneRds(std::int16_t i) const {
  const std::string digits = AddressDigits(Address(i)) + TdcDigits(Command(i));
  std::array<std::uint8_t, kTdcPayload> payload{};
  std::copy_n(digits.begin(), payload.size(), payload.begin());
  SendTdc(Number(i), payload, Active(i));
}

void Tdc0Data::GetIni() {
  for (std::int16_t i = 0; i < kSubChannels; ++i) {
    const std::string text = ReadIniKey(kSection, Key(i));
    if (text.empty()) {
      At(i) = {};
      continue;
    }
    JoinedReader fields(text);
    const std::string_view address = fields.Next();
    if (!address.empty()) {
      At(i).address = Narrow<std::int16_t>(HexToLong(address)).value_or(At(i).address);
    }
    std::string command;
    fields.Switch(At(i).active).Text(command);
    SetCommand(i, command);
  }
}

void Tdc0Data::SetIni() const {
  for (std::int16_t i = 0; i < kSubChannels; ++i) {
    WriteIniKey(
        kSection, Key(i),
        JoinedWriter().Add(AddressDigits(Address(i))).Switch(Active(i)).Text(Command(i)).Ended());
  }
}

}  // namespace corvalis
