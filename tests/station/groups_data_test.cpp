// The group sequence and its section of the file.

#include "station/groups_data.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "config/config_data.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

using GroupsDataTest = LinkTest;

TEST_F(GroupsDataTest, WithoutAFileAllGroupsAreOff) {
  Start("", {}, false);
  const GroupsData groups;
  for (int i = 0; i < 32; ++i) EXPECT_FALSE(groups.Active(i) || groups.Repetitions(i) != 0) << i;
  EXPECT_THROW((void)groups.Active(32), std::out_of_range);
}

TEST_F(GroupsDataTest, ValuesOfAKey) {
  Start("", {}, false);
  struct Case {
    const char* value;
    bool active;
    int repetitions;
  };
  // What stood before is on with 42 repetitions.
  const Case cases[] = {{"07;off", false, 7},
                        {"300;on", true, 300},
                        {"08", false, 8},
                        {"", false, 0},
                        {"40000;ON", true, 42}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.value);
    WriteFile(ProgramFile(), "[Groups]\nGroup15B=42;On\n");
    GroupsData groups;
    WriteFile(ProgramFile(), std::string("[Groups]\nGroup15B=") + c.value + "\n");
    groups.GetIni();
    EXPECT_EQ(groups.Active(31), c.active);
    EXPECT_EQ(groups.Repetitions(31), c.repetitions);
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
