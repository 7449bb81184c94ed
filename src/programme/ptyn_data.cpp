#include "programme/ptyn_data.h"

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/list_commands.h"

namespace corvalis {

PtynData* ptynData = nullptr;

namespace {

constexpr const char* kSection = "PTYN";
constexpr const char* kUnnamed = "--------";

std::string Key(int index) { return "PtyN" + Digits(index, 2); }

}  // namespace

PtynData::PtynData() { GetIni(); }

void PtynData::SetPtyn(const std::string& text, std::uint8_t index) {
  names_.at(index) = Padded(text, kPtynCharacters);
}

void PtynData::GetOneRds(std::uint8_t index) {
  std::string read;  // what a failure leaves
  ReadPtyn(read, index);
  SetPtyn(read, index);
}

void PtynData::SetOneRds(std::uint8_t index) const { SendPtyn(Ptyn(index), index); }

void PtynData::GetIni() {
  for (std::uint8_t index = 0; index <= MaxPtyList(); ++index) {
    const std::string text = ReadIniKey(kSection, Key(index));
    SetPtyn(text.empty() ? kUnnamed : text, index);
  }
}

void PtynData::SetIni() const {
  for (std::uint8_t index = 0; index <= MaxPtyList(); ++index) {
    WriteIniKey(kSection, Key(index), JoinedWriter().Text(Ptyn(index)).Separated());
  }
}

}  // namespace corvalis
