#include "programme/pin_data.h"

#include <string>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/list_commands.h"

namespace corvalis {

PinData* pinData = nullptr;

namespace {

constexpr const char* kSection = "PIN";

std::string Key(int row) { return "Pin" + Digits(row, 3); }

}  // namespace

PinData::PinData()
    : size_({.section = kSection,
             .key = "MaxPinNum",
             .fallback = 255,
             .read_count = ReadPinNum,
             .limit = kProgrammeItemNumbers,
             .digits = 3}) {
  GetIni();
}

void PinData::GetOneRds(std::int16_t row) {
  Row& read = At(row);
  ReadPin(row, read.day, read.time, read.type, read.issued);
}

void PinData::SetOneRds(std::int16_t row) const {
  const Row& sent = At(row);
  SendPin(row, sent.day, sent.time, sent.type, sent.issued);
}

void PinData::GetIni() {
  size_.Load();
  rows_.assign(static_cast<std::size_t>(MaxPinNum()), {});
  for (std::int16_t row = 0; row < MaxPinNum(); ++row) {
    const std::string text = ReadIniKey(kSection, Key(row));
    if (text.empty()) continue;
    Row& loaded = At(row);
    JoinedReader value(text);
    value.Number(loaded.day);
    loaded.time = ParseTime(WithoutBlanks(value.Next())).value_or(loaded.time);
    value.Number(loaded.type).Switch(loaded.issued);
  }
}

void PinData::SetIni() const {
  size_.Store();
  for (std::int16_t row = 0; row < MaxPinNum(); ++row) {
    WriteIniKey(kSection, Key(row),
                JoinedWriter()
                    .Number(MonthDay(row), 2)
                    .Add(TimeText(Time(row)))
                    .Number(ProgramType(row), 2)
                    .Switch(Issued(row))
                    .Separated());
  }
}

}  // namespace corvalis
