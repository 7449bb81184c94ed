#include "networks/tdc_data.h"

#include <algorithm>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/station_commands.h"

namespace corvalis {

TdcData* tdcData = nullptr;

namespace {

constexpr const char* kSection = "TDC";
constexpr int kBitsOfDigit = 4;

std::uint8_t Number(std::int16_t i) { return static_cast<std::uint8_t>(i); }

std::string Key(int i) { return "Ch" + Digits(i + 1, 2); }

}  // namespace

std::string TdcDigits(std::string_view command) {
  std::string bits(command);
  std::replace_if(
      bits.begin(), bits.end(), [](char bit) { return bit != '1'; }, '0');
  return BitsToHex(bits, static_cast<std::int16_t>(bits.size() / kBitsOfDigit));
}

TdcData::TdcData() { GetIni(); }

void TdcData::SetCommand(std::int16_t i, const std::string& text) {
  At(i).command = Padded(text, kTdcBits);
}

// A failed read is not looked at, unlike that of a subchannel. That is meant.
void TdcData::GetOneRds(std::int16_t i) {
  std::array<std::uint8_t, kTdcPayload> payload{};
  bool active = false;
  ReadTdc(Number(i), payload, active);
  SetCommand(i, HexToBits(std::string(payload.begin(), payload.end()), kTdcBits));
  At(i).active = active;
}

void TdcData::SendOneRds(std::int16_t i) const {
  const std::string digits = TdcDigits(Command(i));
  std::array<std::uint8_t, kTdcPayload> payload{};
  std::copy_n(digits.begin(), payload.size(), payload.begin());
  SendTdc(Number(i), payload, Active(i));
}

void TdcData::GetIni() {
  for (std::int16_t i = 0; i < kChannels; ++i) {
    const std::string text = ReadIniKey(kSection, Key(i));
    if (text.empty()) {
      At(i) = {};
      continue;
    }
    std::string command;
    JoinedReader(text).Switch(At(i).active).Text(command);
    SetCommand(i, command);
  }
}

void TdcData::SetIni() const {
  for (std::int16_t i = 0; i < kChannels; ++i) {
    WriteIniKey(kSection, Key(i), JoinedWriter().Switch(Active(i)).Text(Command(i)).Ended());
  }
}

}  // namespace corvalis
