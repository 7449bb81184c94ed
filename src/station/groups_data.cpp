#include "station/groups_data.h"

#include <string_view>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"

namespace corvalis {

GroupsData* groupsData = nullptr;

namespace {

constexpr std::string_view kSection = "Groups";

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
    JoinedReader(text).Number(entry.repetitions).Switch(entry.active);
  }
}

void GroupsData::SetIni() {
  for (int i = 0; i < kGroups; ++i) {
    WriteIniKey(kSection, Key(i),
                JoinedWriter().Number(Repetitions(i), 2).Switch(Active(i)).Separated());
  }
}

}  // namespace corvalis
