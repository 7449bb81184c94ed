#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <string_view>

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

  /// Writes one key as one whole operation. False, with the file as it was, if that can't be done.
  bool Write(std::string_view section, std::string_view key, std::string_view value,
             bool in_series);

  /// Sees the keys of the series onto the disk and removes the spare.
  void EndSeries();

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
  bool Save(const ProfileDocument::Range& edit, bool in_series);
  [[nodiscard]] int OpenSpare() const;
  [[nodiscard]] int CreateSpare() const;
  bool Put(int file, const ProfileDocument::Range& range) const;
  static bool Finish(int file, Stamp& stamp, bool& settled);
  bool ChangePlaces(bool exchange, bool& spare_remains) const;

  std::string path_;
  ProfileDocument document_;
  bool loaded_ = false;
  Stamp stamp_;
  /// Whether any later change of the file must show in its stamp.
  bool settled_ = false;

  // The series. Only a file that this series itself has made becomes a spare: the one that was
  // there before may have other names, or readers.
  std::string target_;  // the file behind the links, beside which the spare lies
  bool touched_ = false;
  bool made_here_ = false;
  bool has_spare_ = false;
  Stamp spare_stamp_;
  ProfileDocument::Range spare_lag_;  // where the spare differs from the file
};

}  // namespace corvalis
