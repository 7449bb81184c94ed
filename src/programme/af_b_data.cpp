#include "programme/af_b_data.h"

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/list_commands.h"

namespace corvalis {

AfBData* afBData = nullptr;

namespace {

constexpr const char* kSection = "AF Method B";

std::string Key(int list) { return "List" + Digits(list, 2); }

}  // namespace

AfBData::AfBData()
    : size_({.section = kSection,
             .key = "MaxAfBListNum",
             .fallback = 100,
             .read_count = ReadAfNum,
             .limit = kItemNumbers}) {
  GetIni();
}

void AfBData::GetOneRds(std::int16_t list) {
  List& target = At(list);
  air::AfCodes codes{};
  ReadAf(static_cast<std::uint8_t>(list), codes);
  target.freq = air::AfBFrequenciesOf(codes);
}

void AfBData::SetOneRds(std::int16_t list) const {
  SendAf(static_cast<std::uint8_t>(list), air::AfBCodes(At(list).freq));
}

void AfBData::GetIni() {
  size_.Load();
  lists_.assign(static_cast<std::size_t>(MaxAfBListNum()), {});
  for (std::int16_t list = 0; list < MaxAfBListNum(); ++list) {
    const std::string text = ReadIniKey(kSection, Key(list));
    if (text.empty()) continue;
    JoinedReader fields(text);
    List& target = At(list);
    fields.Real(target.freq.main);
    // One field more than is written: the description is tried as a frequency, and what would be
    // its own field is empty. Files have always been read so.
    for (float& other : target.freq.others) fields.Real(other);
    fields.Text(target.descr);
  }
  current_ = 0;
}

void AfBData::SetIni() const {
  size_.Store();
  for (std::int16_t list = 0; list < MaxAfBListNum(); ++list) {
    JoinedWriter fields;
    fields.Real(MainFreq(list), 3, 1);
    for (std::int16_t i = 0; i < air::AfBFrequencies::kShown; ++i)
      fields.Real(ListFreq(list, i), 3, 1);
    WriteIniKey(kSection, Key(list), fields.Text(Descr(list)).Separated());
  }
}

}  // namespace corvalis
