#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/profile_store.h"

namespace corvalis::test {

namespace fs = std::filesystem;

inline std::string Contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void Put(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

/// A store and a profile in a folder of its own.
class ProfileStoreTest : public testing::Test {
 protected:
  ProfileStoreTest() {
    std::string name = (fs::temp_directory_path() / "corvalis-store-XXXXXX").string();
    if (::mkdtemp(name.data()) != nullptr) folder = name;
    file = folder / "station.rds";
  }
  ~ProfileStoreTest() override { fs::remove_all(folder); }

  /// The names of all files beside the profile, hidden ones too.
  [[nodiscard]] std::vector<std::string> Litter() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path() != file) names.push_back(entry.path().filename());
    }
    return names;
  }

  fs::path folder;
  fs::path file;
  ProfileStore store;
};

}  // namespace corvalis::test
