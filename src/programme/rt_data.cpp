#include "programme/rt_data.h"

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"

namespace corvalis {

RtData* rtData = nullptr;

namespace {

constexpr const char* kSection = "RT";

std::string Key(int row) { return "Rt" + Digits(row, 2); }

}  // namespace

RtData::RtData()
    : size_({.section = kSection,
             .key = "MaxRtNum",
             .fallback = 50,
             .read_count = ReadRtNum,
             .limit = kItemNumbers,
             .digits = 2}) {
  GetIni();
}

void RtData::SetData(std::int16_t row, const std::string& text) {
  At(row).data = Padded(text, kRtCharacters);
}

void RtData::SetRotationTime(std::int16_t row, std::int16_t value) {
  At(row).rotation_time = static_cast<std::uint8_t>(value);
}

void RtData::GetOne(std::int16_t row, std::string& text, std::uint8_t& rotation) const {
  text = Data(row);
  rotation = RotationTime(row);
}

void RtData::SetOne(std::int16_t row, const std::string& text, std::int16_t rotation) {
  SetData(row, text);
  SetRotationTime(row, rotation);
}

void RtData::GetOneRds(std::int16_t row) {
  ReadRt(static_cast<std::uint8_t>(row), At(row).rotation_time, At(row).data);
}

void RtData::SetOneRds(std::int16_t row) const {
  SendRt(static_cast<std::uint8_t>(row), RotationTime(row), Data(row));
}

void RtData::GetIni() {
  size_.Load();
  rows_.assign(static_cast<std::size_t>(MaxRtNum()), {});
  for (std::int16_t row = 0; row < MaxRtNum(); ++row) {
    const std::string text = ReadIniKey(kSection, Key(row));
    if (text.empty()) continue;
    std::string data;
    JoinedReader(text).Number(At(row).rotation_time).Text(data);
    SetData(row, data);
  }
}

void RtData::SetIni() const {
  size_.Store();
  for (std::int16_t row = 0; row < MaxRtNum(); ++row) {
    WriteIniKey(kSection, Key(row),
                JoinedWriter().Number(RotationTime(row), 2).Text(Data(row)).Ended());
  }
}

}  // namespace corvalis
