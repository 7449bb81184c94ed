#include "programme/psn_data.h"

#include "config/conversions.h"
#include "link/link_error.h"
#include "link/list_commands.h"
#include "link/serial_management.h"

namespace corvalis {

PsnData* psnData = nullptr;

namespace {
constexpr int kPage = 0;  // the list is kept as this page
}  // namespace

PsnData::PsnData()
    : size_({.section = kPsnSection,
             .key = "MaxPsnNum",
             .fallback = 50,
             .read_count = ReadPsnNum,
             .limit = kItemNumbers}) {
  GetIni();
}

void PsnData::SetData(std::int16_t row, const std::string& text) {
  At(row).data = Padded(text, kPsnCharacters);
}

void PsnData::SetRotationTime(std::int16_t row, std::int16_t value) {
  At(row).rotation_time = static_cast<std::uint8_t>(value);
}

void PsnData::GetOneRds(std::int16_t row) {
  PsnRow read = At(row);
  ReadPsn(static_cast<std::uint8_t>(row), read.rotation_time, read.data);
  if (LinkError != kLinkOk) return;
  read.active = read.rotation_time != 0;
  At(row) = read;
}

void PsnData::SetOneRds(std::int16_t row) const {
  const PsnRow& sent = At(row);
  SendPsn(static_cast<std::uint8_t>(row), sent.active ? sent.rotation_time : std::uint8_t{0},
          sent.data);
}

void PsnData::GetIni() {
  size_.Load();
  scroll_.Load();
  rows_.clear();
  for (int row = 0; row < MaxPsnNum(); ++row) rows_.push_back(LoadPsnRow(kPage, row));
}

void PsnData::SetIni() const {
  size_.Store();
  scroll_.Store();
  for (int row = 0; row < MaxPsnNum(); ++row) {
    StorePsnRow(kPage, row, rows_[static_cast<std::size_t>(row)]);
  }
}

}  // namespace corvalis
