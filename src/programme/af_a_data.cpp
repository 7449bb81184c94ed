#include "programme/af_a_data.h"

#include <string>

#include "config/config_data.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/list_commands.h"
#include "link/serial_management.h"
#include "link/transfer.h"

namespace corvalis {

AfAData* afAData = nullptr;

namespace {

constexpr const char* kSection = "AF Method A";
constexpr const char* kKey = "FreqList";
constexpr std::uint8_t kList = 0;
constexpr float kClearPause = 0.2F;

}  // namespace

AfAData::AfAData() { GetIni(); }

void AfAData::GetOneRds() {
  air::AfCodes codes{};
  ReadAf(kList, codes);
  freq_ = air::AfAFrequencies(codes);
}

void AfAData::SetOneRds() {
  SendAf(kList, air::AfACodes(freq_));
  if (LinkError != kLinkOk || other_lists_cleared_) return;
  ClearAfLists();
  other_lists_cleared_ = LinkError == kLinkOk;
}

// Every list but that of method A. A one-way link can't tell how many there are.
void AfAData::ClearAfLists() {
  air::AfCodes empty;
  empty.fill(air::kAfFiller);
  LinkError = kLinkOk;
  std::int16_t lists = kMostLists;
  if (!configData->Satellite()) {
    ReadAfNum(lists);
    if (LinkError != kLinkOk) return;
  }
  RunItems(
      lists - 1, [&empty](int item) { SendAf(static_cast<std::uint8_t>(item + 1), empty); },
      kClearPause);
}

void AfAData::GetIni() {
  const std::string text = ReadIniKey(kSection, kKey);
  freq_ = {};
  JoinedReader fields(text);
  for (float& value : freq_) fields.Real(value);
}

void AfAData::SetIni() const {
  JoinedWriter fields;
  for (const float value : freq_) {
    if (air::IsLf(value) || air::IsMf(value)) {
      fields.Real(value, 3, 0);
    } else if (air::IsFm(value)) {
      fields.Real(value, 3, 3);
    } else {
      fields.Add("000.000");
    }
  }
  WriteIniKey(kSection, kKey, fields.Ended());
}

}  // namespace corvalis
