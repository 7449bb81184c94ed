#pragma once

#include <sys/stat.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/profile_document.h"

namespace corvalis {

/// One profile on the disk and what is known of it. The file is looked at before each use, so that
/// what other programs do to it is seen, but read again only when it changed. Nothing stays open.
class ProfileFile {
 public:
  explicit ProfileFile(std::string path) : path_(std::move(path)) {}

  /// The value of the key, until the next call; nothing if the file, the section or the key is
  /// missing or can't be read.
  [[nodiscard]] std::optional<std::string_view> Read(std::string_view section,
                                                     std::string_view key);

  /// All keys of the section, in small letters, with their values; none if there is no such section
  /// or it can't be read.
  [[nodiscard]] std::unordered_map<std::string, std::string> ReadSection(std::string_view section);

  /// Gives the key a value in memory, to be committed later. False if no line can hold it or the
  /// file can't be read.
  bool Edit(std::string_view section, std::string_view key, std::string_view value);

  /// Puts all edits on the disk as one whole operation, or drops them. True if they are on the
  /// disk to stay; a file that has them already isn't touched. Waits at most `lock_wait` for
  /// others that save in the same folder.
  bool Commit(std::chrono::milliseconds lock_wait);

 private:
  /// What tells one state of a file from another. A missing file has the inode 0.
  struct Stamp {
    Stamp() = default;
    explicit Stamp(const struct stat& status);
    bool operator==(const Stamp&) const = default;
    [[nodiscard]] bool Missing() const { return inode == 0; }

    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    time_t seconds = 0;
    long nanoseconds = 0;
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
  };

  bool Refresh();
  bool Load();
  void Take(std::string text);

  std::string path_;
  ProfileDocument document_;  // the file's text with the edits
  std::string text_;          // the file's text
  std::string changes_;       // the edits, in their order: section, key and value in a line each
  bool loaded_ = false;
  Stamp stamp_;
  /// Whether any later change of the file must show in its stamp.
  bool settled_ = false;
};

}  // namespace corvalis
