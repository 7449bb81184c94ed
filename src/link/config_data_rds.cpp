// The operations of the station record that talk to the Coder. They stand here, beside the commands
// that they run, so that the record itself knows nothing of the link.

#include "config/config_data.h"
#include "link/serial_management.h"
#include "link/station_commands.h"

namespace corvalis {

namespace {

// The DI value: bits 0 and 3 are inverted against their fields, as they mean stereo and dynamic
// PTY.
constexpr std::int16_t kDiStereo = 1;
constexpr std::int16_t kDiArtificialHead = 2;
constexpr std::int16_t kDiCompressed = 4;
constexpr std::int16_t kDiDynamicPty = 8;

}  // namespace

void ConfigData::GetPiRds() {
  if (LinkOpen) ReadPi(country_, coverage_, program_num_);
}

void ConfigData::SetPiRds() {
  if (LinkOpen) SendPi(country_, coverage_, program_num_);
}

void ConfigData::GetEccRds() {
  if (LinkOpen) ReadEcc(ecc_);
}

void ConfigData::SetEccRds() {
  if (LinkOpen) SendEcc(ecc_);
}

void ConfigData::GetLicRds() {
  if (LinkOpen) ReadLic(lic_);
}

void ConfigData::SetLicRds() {
  if (LinkOpen) SendLic(lic_);
}

void ConfigData::GetTpRds() {
  if (LinkOpen) ReadTp(tp_);
}

void ConfigData::SetTpRds() {
  if (LinkOpen) SendTp(tp_);
}

void ConfigData::GetDiRds() {
  if (!LinkOpen) return;
  std::int16_t di = 0;
  ReadDi(di);
  if (LinkError != kLinkOk) return;
  mono_ = (di & kDiStereo) == 0;
  artificial_head_ = (di & kDiArtificialHead) != 0;
  compressed_ = (di & kDiCompressed) != 0;
  static_pty_ = (di & kDiDynamicPty) == 0;
}

void ConfigData::SetDiRds() {
  if (!LinkOpen) return;
  std::int16_t di = 0;
  if (!mono_) di = static_cast<std::int16_t>(di | kDiStereo);
  if (artificial_head_) di = static_cast<std::int16_t>(di | kDiArtificialHead);
  if (compressed_) di = static_cast<std::int16_t>(di | kDiCompressed);
  if (!static_pty_) di = static_cast<std::int16_t>(di | kDiDynamicPty);
  SendDi(di);
}

void ConfigData::GetCtRds() {
  if (LinkOpen) ReadCt(date_value_, day_of_week_, date_psn_, hour_psn_, ct_offset_);
}

void ConfigData::SetCtRds() {
  if (LinkOpen) SendCt(date_value_, day_of_week_, date_psn_, hour_psn_, ct_offset_);
}

}  // namespace corvalis
