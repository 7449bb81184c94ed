#include "networks/li_data.h"

#include <string>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "link/station_commands.h"

namespace corvalis {

LiData* liData = nullptr;

namespace {

constexpr const char* kSection = "LI";
constexpr std::int16_t kNewLsn = 0x501;
constexpr std::int16_t kMaxLsn = 0xFFF;
constexpr int kLsnDigits = 3;

}  // namespace

LiData::LiData() { GetIni(); }

void LiData::GetOneRds() { ReadLi(la_, egi_, il_, lsn_); }

void LiData::SetOneRds() const { SendLi(la_, egi_, il_, lsn_); }

void LiData::GetIni() {
  egi_ = ReadIniSwitch(kSection, "Egi");
  la_ = ReadIniSwitch(kSection, "La");
  il_ = ReadIniSwitch(kSection, "Il");
  const std::int32_t lsn = HexToLong(ReadIniKey(kSection, "Lsn"));
  lsn_ = lsn >= 0 && lsn <= kMaxLsn ? static_cast<std::int16_t>(lsn) : kNewLsn;
}

void LiData::SetIni() const {
  WriteIniSwitch(kSection, "Egi", egi_);
  WriteIniSwitch(kSection, "La", la_);
  WriteIniSwitch(kSection, "Il", il_);
  WriteIniKey(kSection, "Lsn", HexDigits(lsn_, 1, kLsnDigits));
}

}  // namespace corvalis
