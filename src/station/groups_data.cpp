#include "station/groups_data.h"

#include <string_view>

#include "config/conversions.h"
#include "config/ini_management.h"

namespace corvalis {

GroupsData* groupsData = nullptr;

namespace {

constexpr std::string_view kSection = "Groups";
constexpr std::string_view kSeparator = ";";

std::string NumberAndVersion(int group, int digits) {
  return Digits(group % kGroupNumbers, digits) + (group < kGroupNumbers ? "A" : "B");
}

std::string Key(int group) { return "Group" + NumberAndVersion(group, 2); }

}  // namespace

std::string GroupName(int group) { return NumberAndVersion(group, 1); }

GroupsData::GroupsData() { GetIni(); }

void GroupsData::GetIni() {
  for (int i = 0; i < kGroups; ++i) {
    const std::string text = ReadIniKey(kSection, Key(i));
    Entry& entry = At(i);
    if (text.empty()) {
      entry = Entry{};
      continue;
    }
    const auto repetitions = ParseDecimal<std::int16_t>(GetToken(text, 0, kSeparator));
    entry.repetitions = repetitions.value_or(entry.repetitions);
    entry.active = IsOn(GetToken(text, 1, kSeparator));
  }
}

void GroupsData::SetIni() {
  for (int i = 0; i < kGroups; ++i) {
    std::string text = Digits(Repetitions(i), 2);
    text.append(kSeparator).append(OnOff(Active(i)));
    WriteIniKey(kSection, Key(i), text);
  }
}

}  // namespace corvalis
