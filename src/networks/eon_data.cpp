#include "networks/eon_data.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "air/af_codes.h"
#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/body.h"
#include "link/list_commands.h"
#include "link/serial_management.h"

namespace corvalis {

EonData* eonData = nullptr;

namespace {

constexpr const char* kSection = "EON";
constexpr const char* kCount = "MaxListNum";
constexpr const char* kUnnamed = "EON PSN";
constexpr std::int32_t kUnknownPi = 0x5158;
constexpr std::int32_t kSixteenBits = 0xFFFF;
constexpr int kPsn = kPsnCharacters;

// What is no frequency of the band, as a file may bring it, is none.
std::uint8_t FmCode(float value) {
  return air::IsFm(value) ? air::AfFreqCode(value) : air::kAfFiller;
}

std::uint8_t AmCode(float value) {
  const float khz = std::round(value);
  return air::IsLf(khz) || air::IsMf(khz) ? air::AmFreqCode(khz) : 0;
}

float FmFreq(std::uint8_t code) {
  return code == air::kAfFiller ? air::kNoFreq : air::AfCodeFreq(code);
}

float AmFreq(std::uint8_t code) {
  return code == 0 || code > air::kLastAmCode ? air::kNoFreq : air::AmCodeFreq(code);
}

// What is no code leaves the frequency.
void ReadFreq(BodyReader& body, float& value, float (*freq)(std::uint8_t code)) {
  if (const auto code = Narrow<std::uint8_t>(body.Hex(2))) value = freq(*code);
}

std::optional<std::int32_t> HexValue(const std::string& text) {
  const std::int32_t value = HexToLong(text);
  if (value < 0 || value > kSixteenBits) return std::nullopt;
  return value;
}

std::string Key(const char* name, int number) { return name + std::to_string(number); }

template <std::size_t kSize>
void ReadFreqs(const char* name, int number, std::array<float, kSize>& freqs) {
  const std::string text = ReadIniKey(kSection, Key(name, number));
  JoinedReader fields(text);
  for (float& freq : freqs) fields.Real(freq);
}

}  // namespace

// The count is written under one key and read under another, so a file that was saved does not fix
// it by itself. That is meant.
EonData::EonData()
    : size_({.section = kSection,
             .key = "MaxEonNum",
             .fallback = 10,
             .read_count = ReadEonNum,
             .limit = kItemNumbers,
             .keeps_answer = true}) {
  GetIni();
}

void EonData::SetCurrentList(std::int32_t list) {
  current_ = static_cast<std::int16_t>(list < 0 ? MaxListNum() - 1 : list % MaxListNum());
}

void EonData::SetPsn(const std::string& text, std::int16_t list) {
  At(list).psn = Padded(text, kPsn);
}

void EonData::GetOneRds(std::int16_t list) {
  std::string payload;
  ReadEon(static_cast<std::uint8_t>(list), payload);
  if (LinkError != kLinkOk) return;
  EonList& target = At(list);
  BodyReader body(BytesOf(std::as_const(payload)));
  target.psn = body.Text(kPsn);
  target.tp = body.Flag();
  target.ta = body.Flag();
  target.pty = Narrow<std::uint8_t>(body.Hex(2)).value_or(target.pty);
  target.pin = body.Hex(4);
  for (float& freq : target.af_a) ReadFreq(body, freq, FmFreq);
  for (std::size_t i = 0; i < kEonAfB; ++i) {
    ReadFreq(body, target.af_b.at(i), i == kEonAm ? AmFreq : FmFreq);
  }
  target.pi = body.Hex(4);
  target.enable = body.Flag();
}

void EonData::SetOneRds(std::int16_t list) const {
  const EonList& source = At(list);
  std::string payload(kEonPayload, ' ');
  BodyWriter body(BytesOf(payload));
  body.Text(source.psn, kPsn).Flag(source.tp).Flag(source.ta).Hex(source.pty, 2).Hex(source.pin, 4);
  for (const float freq : source.af_a) body.Hex(FmCode(freq), 2);
  for (std::size_t i = 0; i < kEonAfB; ++i) {
    const float freq = source.af_b.at(i);
    body.Hex(i == kEonAm ? AmCode(freq) : FmCode(freq), 2);
  }
  body.Hex(source.pi, 4).Flag(source.enable);
  SendEon(static_cast<std::uint8_t>(list), payload);
}

void EonData::GetTaRds(std::int16_t list) {
  EonList& target = At(list);
  ReadEonTa(static_cast<std::uint8_t>(list), target.ta);
}

void EonData::SetTaRds(std::int16_t list) const {
  SendEonTa(static_cast<std::uint8_t>(list), Ta(list));
}

void EonData::GetIni() {
  size_.Load(configData->Modem() || configData->EonEnable());
  lists_.assign(static_cast<std::size_t>(MaxListNum()), {});
  for (std::int16_t list = 0; list < MaxListNum(); ++list) Load(At(list), list);
  current_ = 0;
}

// PIN and PTY come back as other numbers than they were written: files have always been so.
void EonData::Load(EonList& list, int number) {
  list.enable = ReadIniSwitch(kSection, Key("Enable", number));
  const std::string psn = ReadIniKey(kSection, Key("Psn", number));
  list.psn = Padded(psn.empty() ? kUnnamed : psn, kPsn);
  const std::string pi = ReadIniKey(kSection, Key("Pi", number));
  list.pi = pi.empty() ? kUnknownPi : HexValue(pi).value_or(list.pi);
  const std::string pin = ReadIniKey(kSection, Key("Pin", number));
  const std::string digits = pin.substr(0, pin.find_first_not_of("0123456789"));
  const std::int32_t value = ParseDecimal<std::int32_t>(digits).value_or(list.pin);
  if (value <= kSixteenBits) list.pin = value;
  const std::string pty = ReadIniKey(kSection, Key("Pty", number));
  list.pty = Narrow<std::uint8_t>(HexValue(pty).value_or(list.pty)).value_or(list.pty);
  list.tp = ReadIniSwitch(kSection, Key("Tp", number));
  list.ta = ReadIniSwitch(kSection, Key("Ta", number));
  ReadFreqs("AfMethodA", number, list.af_a);
  ReadFreqs("AfMethodB", number, list.af_b);
}

void EonData::SetIni() const {
  WriteIniKey(kSection, kCount, std::to_string(MaxListNum()));
  for (std::int16_t list = 0; list < MaxListNum(); ++list) Store(At(list), list);
}

void EonData::Store(const EonList& list, int number) {
  WriteIniSwitch(kSection, Key("Enable", number), list.enable);
  WriteIniKey(kSection, Key("Psn", number), JoinedWriter().Text(list.psn).Separated());
  WriteIniKey(kSection, Key("Pi", number), HexDigits(list.pi, 1, 4));
  WriteIniKey(kSection, Key("Pin", number), HexDigits(list.pin, 1, 4));
  WriteIniKey(kSection, Key("Pty", number), Digits(list.pty, 2));
  WriteIniSwitch(kSection, Key("Tp", number), list.tp);
  WriteIniSwitch(kSection, Key("Ta", number), list.ta);
  JoinedWriter by_a;
  for (const float freq : list.af_a) by_a.Real(freq, 3, 1);
  WriteIniKey(kSection, Key("AfMethodA", number), by_a.Ended());
  JoinedWriter by_b;
  for (std::size_t i = 0; i < kEonAfB; ++i) {
    by_b.Real(list.af_b.at(i), 3, i == kEonAm ? 0 : 1);
  }
  WriteIniKey(kSection, Key("AfMethodB", number), by_b.Ended());
}

}  // namespace corvalis
