#include "networks/tmc_data.h"

#include <string>
#include <utility>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/body.h"
#include "link/list_commands.h"
#include "link/serial_management.h"

namespace corvalis {

TmcData* tmcData = nullptr;

namespace {

constexpr const char* kSection = "TMC";

std::string Key(int i) { return "Msg" + Digits(i, 2); }

// A digit of the line, by its distance from "0": what was written as a letter comes back as another
// number. That is meant.
std::uint8_t Distance(BodyReader& body) { return static_cast<std::uint8_t>(body.Dec1()); }

// The number of times that a letter of the line stands for, if `repetition` has come from one.
int RepetitionSent(std::uint8_t repetition) {
  constexpr int kFromA = 'A' - '0';
  return repetition >= kFromA && repetition <= 'F' - '0' ? repetition - kFromA + 10 : repetition;
}

int SixBitsOf(const char* key) {
  return ParseDecimal<std::int32_t>(ReadIniKey(kSection, key)).value_or(0);
}

}  // namespace

TmcData::TmcData()
    : size_({.section = kSection,
             .key = "MaxListNum",
             .fallback = 10,
             .read_count = ReadTmcNum,
             .limit = kItemNumbers}) {
  GetIni();
}

void TmcData::GetOneSystemRds() {
  std::string payload;
  ReadTmcSystem(payload);
  if (LinkError != kLinkOk) return;
  BodyReader body(BytesOf(std::as_const(payload)));
  if (const std::int32_t ltn = body.Hex(2); ltn >= 0) SetLtn(ltn);
  if (const std::int32_t sid = body.Hex(2); sid >= 0) SetSid(sid);
  international_ = body.Flag();
  national_ = body.Flag();
  regional_ = body.Flag();
  urban_ = body.Flag();
}

void TmcData::SetOneSystemRds() const {
  std::string payload(kTmcSystemPayload, ' ');
  BodyWriter(BytesOf(payload))
      .Hex(ltn_, 2)
      .Hex(sid_, 2)
      .Flag(international_)
      .Flag(national_)
      .Flag(regional_)
      .Flag(urban_);
  SendTmcSystem(payload);
}

void TmcData::GetOneRds(std::int16_t i) {
  std::string payload;
  ReadTmc(static_cast<std::uint8_t>(i), payload);
  if (LinkError != kLinkOk) return;
  TmcMessage& target = At(i);
  BodyReader body(BytesOf(std::as_const(payload)));
  target.events = static_cast<std::int16_t>(body.Hex(3));
  target.location = body.Hex(4);
  target.direction = body.Flag();
  target.extent = Distance(body);
  target.diversion = body.Flag();
  target.duration = Distance(body);
  target.repetition = Distance(body);
}

void TmcData::SetOneRds(std::int16_t i) const {
  const TmcMessage& source = At(i);
  std::string payload(kTmcPayload, ' ');
  BodyWriter(BytesOf(payload))
      .Hex(source.events, 3)
      .Hex(source.location, 4)
      .Flag(source.direction)
      .Hex(source.extent, 1)
      .Flag(source.diversion)
      .Hex(source.duration, 1)
      .Hex(RepetitionSent(source.repetition), 1);
  SendTmc(static_cast<std::uint8_t>(i), payload);
}

void TmcData::LoadSystem() {
  SetLtn(SixBitsOf("Ltn"));
  SetSid(SixBitsOf("Sid"));
  international_ = ReadIniSwitch(kSection, "International");
  national_ = ReadIniSwitch(kSection, "National");
  regional_ = ReadIniSwitch(kSection, "Regional");
  urban_ = ReadIniSwitch(kSection, "Urban");
}

// A location comes back as another number than it was written, and repetitions come back as 0:
// files have always been so.
void TmcData::GetIni() {
  size_.Load(configData->Modem() || configData->TmcEnable());
  LoadSystem();
  messages_.assign(static_cast<std::size_t>(MaxListNum()), {});
  for (std::int16_t i = 0; i < MaxListNum(); ++i) {
    TmcMessage& target = At(i);
    const std::string text = ReadIniKey(kSection, Key(i));
    JoinedReader(text)
        .Hex(target.location)
        .Number(target.events)
        .Hex(target.duration)
        .ExactSwitch(target.direction)
        .Number(target.extent)
        .ExactSwitch(target.diversion);
  }
}

void TmcData::SetIni() const {
  size_.Store();
  WriteIniKey(kSection, "Ltn", Digits(ltn_, 2));
  WriteIniKey(kSection, "Sid", Digits(sid_, 2));
  WriteIniSwitch(kSection, "International", international_);
  WriteIniSwitch(kSection, "National", national_);
  WriteIniSwitch(kSection, "Regional", regional_);
  WriteIniSwitch(kSection, "Urban", urban_);
  for (std::int16_t i = 0; i < MaxListNum(); ++i) {
    const TmcMessage& source = At(i);
    WriteIniKey(kSection, Key(i),
                JoinedWriter()
                    .Number(source.location, 4)
                    .Number(source.events, 3)
                    .Number(source.duration, 1)
                    .Switch(source.direction)
                    .Number(source.extent, 1)
                    .Switch(source.diversion)
                    .Number(source.repetition, 1)
                    .Ended());
  }
}

}  // namespace corvalis
