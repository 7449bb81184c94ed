#include "platform/profile_store.h"

#include <algorithm>
#include <exception>
#include <unordered_map>
#include <utility>

#include "platform/profile_file.h"

namespace corvalis {

// What is caught in this file is a memory too small for a profile.

/// The files that were used last.
class ProfileStore::Files {
 public:
  explicit Files(std::chrono::milliseconds lock_wait) : lock_wait_(lock_wait) {}

  ProfileFile& operator[](const std::string& path) {
    // A file that is left out is read again when it is asked for; no more is lost than time. A
    // series needs its files to its end.
    constexpr std::size_t kMostFiles = 8;
    if (files_.size() >= kMostFiles && series_ == 0 && !files_.contains(path)) files_.clear();
    return files_.try_emplace(path, path).first->second;
  }

  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value) {
    ProfileFile& file = (*this)[path];
    const bool taken = file.Edit(section, key, value);
    good_ = good_ && taken;
    return taken && (series_ > 0 || file.Commit(lock_wait_));
  }

  /// What was edited in the file is lost.
  void Forget(const std::string& path) {
    good_ = false;
    files_.erase(path);
  }

  void BeginSeries() {
    if (series_++ == 0) good_ = true;
  }
  bool EndSeries() {
    if (--series_ > 0) return good_;
    for (auto entry = files_.begin(); entry != files_.end();) {
      try {
        good_ = entry->second.Commit(lock_wait_) && good_;
        ++entry;
      } catch (const std::exception&) {
        good_ = false;
        entry = files_.erase(entry);
      }
    }
    return good_;
  }

 private:
  std::chrono::milliseconds lock_wait_;
  std::unordered_map<std::string, ProfileFile> files_;
  int series_ = 0;
  bool good_ = true;  // whether the series has taken everything
};

ProfileStore::ProfileStore(std::chrono::milliseconds lock_wait)
    : files_(std::make_unique<Files>(lock_wait)) {}
ProfileStore::~ProfileStore() = default;

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

std::unordered_map<std::string, std::string> ProfileStore::ReadSection(const std::string& path,
                                                                       std::string_view section) {
  try {
    auto values = (*files_)[path].ReadSection(section);
    for (auto& [key, value] : values) value.resize(std::min(value.size(), kBufferSize - 1));
    return values;
  } catch (const std::exception&) {
    files_->Forget(path);
    return {};
  }
}

bool ProfileStore::Write(const std::string& path, std::string_view section, std::string_view key,
                         std::string_view value) {
  if (caught_ != nullptr) {
    for (const std::string_view part : {section, key, value}) caught_->append(part).append("\n");
    return true;
  }
  try {
    return files_->Write(path, section, key, value);
  } catch (const std::exception&) {
    files_->Forget(path);
    return false;
  }
}

ProfileStore::Series::Series(ProfileStore& store) : store_(&store) { store.files_->BeginSeries(); }

ProfileStore::Series::~Series() {
  if (store_ != nullptr) store_->files_->EndSeries();
}

ProfileStore::Catch::Catch(ProfileStore& store) : store_(store) { store.caught_ = &text_; }

ProfileStore::Catch::~Catch() { store_.caught_ = nullptr; }

bool ProfileStore::Series::Finish() { return std::exchange(store_, nullptr)->files_->EndSeries(); }

}  // namespace corvalis
