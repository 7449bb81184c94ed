#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace corvalis {

/// The folder part of a path, with its "/"; "./" for a name alone.
[[nodiscard]] std::string FolderOf(const std::string& path);

/// The file that symbolic links lead to, there or not.
[[nodiscard]] std::string FollowLinks(std::string path);

/// The folder of one profile while the profile is put on the disk. Keeps a second program of this
/// kind from saving in the same folder meanwhile. A lock that isn't given up within `lock_wait`
/// seems to be somebody else's affair and stops nothing, and neither does a file system without
/// locks.
class ProfileFolder {
 public:
  /// `file` is no link.
  ProfileFolder(const std::string& file, std::chrono::milliseconds lock_wait);
  ~ProfileFolder();
  ProfileFolder(const ProfileFolder&) = delete;
  ProfileFolder& operator=(const ProfileFolder&) = delete;

  /// Puts `text` in the place of the file: into a new file beside it with the same owner, group,
  /// mode and access list, made durable, then renamed over it, and the folder made durable.
  /// Whoever dies at whatever moment leaves the old file or the new one. Where the folder takes no
  /// new file, the text goes over the old one, `before`, which is put back if that fails. False if
  /// the text isn't known to be on the disk; the file is then the old one, unless the folder alone
  /// could not be made durable.
  [[nodiscard]] bool Put(std::string_view text, std::string_view before) const;

  /// Sees the file as it is onto the disk.
  [[nodiscard]] bool Sync() const;

 private:
  void RemoveLeftovers() const;
  [[nodiscard]] int CreateBeside(std::string& name) const;
  void MakeAlike(int file) const;
  [[nodiscard]] bool PutInPlace(std::string_view text, std::string_view before) const;
  [[nodiscard]] bool SyncFolder() const;

  std::string file_;
  std::string prefix_;  // of the new files' names, with the path
  int folder_;
};

}  // namespace corvalis
