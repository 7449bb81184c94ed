// The group sequence and its section of the file.

#include "station/groups_data.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "config/config_data.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

class GroupsDataTest : public LinkTest {
 protected:
  [[nodiscard]] std::string Stored(const char* key) {
    return profiles.Read(ProgramFile(), "Groups", key);
  }
};

TEST_F(GroupsDataTest, NoFileIsAllOff) {
  Start("", {}, false);
  const GroupsData groups;
  EXPECT_EQ(groups.MaxGroupNum(), 32);
  EXPECT_EQ(groups.MaxRepetitions(), 100);
  for (int i = 0; i < 32; ++i) {
    EXPECT_FALSE(groups.Active(i)) << i;
    EXPECT_EQ(groups.Repetitions(i), 0) << i;
  }
}

TEST_F(GroupsDataTest, ValuesOfAKey) {
  Start("", {}, false);
  struct Case {
    const char* value;
    bool active;
    int repetitions;
  };
  // What stood before is on with 42 repetitions.
  const Case cases[] = {{"05;On", true, 5},     {"7;on", true, 7},     {"07;off", false, 7},
                        {"99;Yes", false, 99},  {"300;On", true, 300}, {"-3;On", true, -3},
                        {"08", false, 8},       {"", false, 0},        {"x;On", true, 42},
                        {"40000;ON", true, 42}, {";Off", false, 42},   {"12;On;9", true, 12},
                        {"1.5;Off", false, 42}};
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
  const std::pair<const char*, const char*> keys[] = {
      {"Group00A", "00;On"},  {"Group01A", "04;Off"}, {"Group09A", "36;On"},  {"Group15A", "60;On"},
      {"Group00B", "64;Off"}, {"Group02B", "72;On"},  {"Group15B", "124;Off"}};
  for (const auto& [key, value] : keys) EXPECT_EQ(Stored(key), value) << key;

  const GroupsData again;
  for (int i = 0; i < 32; ++i) {
    EXPECT_EQ(again.Active(i), i % 3 == 0) << i;
    EXPECT_EQ(again.Repetitions(i), 4 * i) << i;
  }
}

TEST_F(GroupsDataTest, IndexOutsideTheTable) {
  Start("", {}, false);
  GroupsData groups;
  for (const int index : {-1, 32}) {
    EXPECT_THROW((void)groups.Active(index), std::out_of_range);
    EXPECT_THROW(groups.SetActive(index, true), std::out_of_range);
    EXPECT_THROW((void)groups.Repetitions(index), std::out_of_range);
    EXPECT_THROW(groups.SetRepetitions(index, 1), std::out_of_range);
  }
}

}  // namespace
}  // namespace corvalis::test
