#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "support/test_machine.h"

namespace corvalis::test {

namespace fs = std::filesystem;

/// A store and a profile in a folder of its own.
class ProfileStoreTest : public MachineTest {
 protected:
  /// The names of all files beside the profile, hidden ones too.
  [[nodiscard]] std::vector<std::string> Litter() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(home)) {
      if (entry.path() != file) names.push_back(entry.path().filename());
    }
    return names;
  }

  const fs::path home = machine.program_folder;
  const fs::path file = home / "station.rds";
  ProfileStore& store = profiles;
};

}  // namespace corvalis::test
