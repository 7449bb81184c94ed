// The group sequence and its section of the file.

#include "station/groups_data.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>

#include "config/config_data.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

using GroupsDataTest = LinkTest;

TEST_F(GroupsDataTest, ValuesOfAKey) {
  Start("", {}, false);
  GroupsData groups;
  EXPECT_THROW((void)groups.Active(32), std::out_of_range);
  const std::tuple<const char*, bool, int> cases[] = {
      {"", false, 0}, {"07;off", false, 7}, {"300;on", true, 300}, {"40000;ON", true, 42}};
  for (const auto& [value, active, repetitions] : cases) {
    groups.SetRepetitions(31, 42);
    WriteFile(ProgramFile(), std::string("[Groups]\nGroup15B=") + value + "\n");
    groups.GetIni();
    EXPECT_EQ(groups.Active(31), active) << value;
    EXPECT_EQ(groups.Repetitions(31), repetitions) << value;
  }
}

TEST_F(GroupsDataTest, StoresAndLoadsAllGroupsWhateverTheCoderModelHas) {
  Start("[RDS Setup]\nGroups B Enable=Off\n", {}, false);
  GroupsData groups;
  for (int i = 0; i < 32; ++i) {
    groups.SetActive(i, i % 3 == 0);
    groups.SetRepetitions(i, static_cast<std::int16_t>(4 * i));
  }
  groups.SetIni();
  EXPECT_EQ(profiles.Read(ProgramFile(), "Groups", "Group01A"), "04;Off");
  EXPECT_EQ(profiles.Read(ProgramFile(), "Groups", "Group02B"), "72;On");
  const GroupsData again;
  for (int i = 0; i < 32; ++i) {
    EXPECT_EQ(again.Active(i), i % 3 == 0) << i;
    EXPECT_EQ(again.Repetitions(i), 4 * i) << i;
  }
}

}  // namespace
}  // namespace corvalis::test
