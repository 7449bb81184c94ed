#include "networks/li_data.h"

#include <string>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "link/serial_management.h"
#include "link/station_commands.h"

namespace corvalis {

LiData* liData = nullptr;

namespace {

constexpr const char* kSection = "LI";
constexpr std::int16_t kNewLsn = 0x501;
constexpr std::int16_t kMaxLsn = 0xFFF;

}  // namespace

LiData::LiData() { GetIni(); }

void LiData::GetOneRds() {
  LiData read = *this;
  ReadLi(read.la_, read.egi_, read.il_, read.lsn_);
  if (LinkError == kLinkOk) *this = read;
}

void LiData::SetOneRds() const { SendLi(la_, egi_, il_, lsn_ & kMaxLsn); }

void LiData::GetIni() {
  egi_ = ReadIniSwitch(kSection, "Egi");
  la_ = ReadIniSwitch(kSection, "La");
  il_ = ReadIniSwitch(kSection, "Il");
  const std::string lsn = ReadIniKey(kSection, "Lsn");
  if (lsn.empty()) {
    lsn_ = kNewLsn;
  } else if (const std::int32_t value = HexToLong(lsn); value >= 0 && value <= kMaxLsn) {
    lsn_ = static_cast<std::int16_t>(value);
  }
}

void LiData::SetIni() const {
  WriteIniSwitch(kSection, "Egi", egi_);
  WriteIniSwitch(kSection, "La", la_);
  WriteIniSwitch(kSection, "Il", il_);
  WriteIniKey(kSection, "Lsn", LongToHex(lsn_ & kMaxLsn, 1));
}

}  // namespace corvalis
