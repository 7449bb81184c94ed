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

// The low digits of a number that may be too large for its place.
std::int32_t Low(std::int32_t value, int digits) { return value & ((1 << (4 * digits)) - 1); }

// A digit of the line, by its distance from "0": what was written as a letter comes back as another
// number. That is meant.
std::uint8_t Distance(BodyReader& body) { return static_cast<std::uint8_t>(body.Dec1()); }

// A hexadecimal number leaves what can't hold it.
template <class Int>
void ReadHex(JoinedReader& fields, Int& target) {
  const std::string_view field = fields.Next();
  const std::int32_t value = field.empty() ? 0 : HexToLong(field);
  if (value >= 0) target = Narrow<Int>(value).value_or(target);
}

void ReadSixBits(const char* key, std::uint8_t& target) {
  const std::string text = ReadIniKey(kSection, key);
  const auto value = text.empty() ? std::int32_t{0} : ParseDecimal<std::int32_t>(text);
  if (value) target = static_cast<std::uint8_t>(*value & 63);
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
      .Hex(Low(source.events, 3), 3)
      .Hex(Low(source.location, 4), 4)
      .Flag(source.direction)
      .Hex(Low(source.extent, 1), 1)
      .Flag(source.diversion)
      .Hex(Low(source.duration, 1), 1)
      .Hex(Low(source.repetition, 1), 1);
  SendTmc(static_cast<std::uint8_t>(i), payload);
}

void TmcData::LoadSystem() {
  ReadSixBits("Ltn", ltn_);
  ReadSixBits("Sid", sid_);
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
    JoinedReader fields(text);
    ReadHex(fields, target.location);
    fields.Number(target.events);
    ReadHex(fields, target.duration);
    fields.ExactSwitch(target.direction).Number(target.extent).ExactSwitch(target.diversion);
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
