#include "platform/folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "support/test_machine.h"

namespace corvalis::test {
namespace {

using FoldersTest = MachineTest;

TEST_F(FoldersTest, SampleStationsThatWereInstalledAreAPlace) {
  const std::string samples = folder + "/share/corvalis/examples";
  setenv("XDG_DATA_DIRS", ("relative:" + folder + "/none:" + folder + "/share/").c_str(), 1);
  const auto has = [&samples] {
    const std::vector<std::string> places = ListPlaces();
    return std::find(places.begin(), places.end(), samples) != places.end();
  };
  EXPECT_FALSE(has());
  std::filesystem::create_directories(samples);
  EXPECT_TRUE(has());
  unsetenv("XDG_DATA_DIRS");
}

}  // namespace
}  // namespace corvalis::test
