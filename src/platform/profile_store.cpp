#include "platform/profile_store.h"

#include <exception>
#include <unordered_map>

#include "platform/profile_file.h"

namespace corvalis {

/// The files that were used last.
class ProfileStore::Files {
 public:
  ProfileFile& operator[](const std::string& path) {
    // A file that is left out is read again when it is asked for; no more is lost than time. A
    // series needs its files to its end.
    constexpr std::size_t kMostFiles = 8;
    if (files_.size() >= kMostFiles && series_ == 0 && !files_.contains(path)) files_.clear();
    return files_.try_emplace(path, path).first->second;
  }
  void Forget(const std::string& path) {
    const auto found = files_.find(path);
    if (found == files_.end()) return;
    found->second.EndSeries();
    files_.erase(found);
  }

  [[nodiscard]] bool InSeries() const { return series_ > 0; }
  void BeginSeries() { ++series_; }
  void EndSeries() {
    if (--series_ > 0) return;
    for (auto& [path, file] : files_) file.EndSeries();
  }

 private:
  std::unordered_map<std::string, ProfileFile> files_;
  int series_ = 0;
};

ProfileStore::ProfileStore() : files_(std::make_unique<Files>()) {}
ProfileStore::~ProfileStore() = default;

// What is caught below is a memory too small for the file.

std::string ProfileStore::Read(const std::string& path, std::string_view section,
                               std::string_view key, std::size_t buffer_size) {
  if (buffer_size == 0) return {};
  try {
    const auto value = (*files_)[path].Read(section, key);
    return std::string(value.value_or(std::string_view()).substr(0, buffer_size - 1));
  } catch (const std::exception&) {
    files_->Forget(path);
    return {};
  }
}

bool ProfileStore::Write(const std::string& path, std::string_view section, std::string_view key,
                         std::string_view value) {
  try {
    return (*files_)[path].Write(section, key, value, files_->InSeries());
  } catch (const std::exception&) {
    files_->Forget(path);
    return false;
  }
}

ProfileStore::Series::Series(ProfileStore& store) : store_(store) { store_.files_->BeginSeries(); }
ProfileStore::Series::~Series() { store_.files_->EndSeries(); }

}  // namespace corvalis
