#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace corvalis {

/// Sections and keys in text files, one key a call: lines of "[Section]" and "Key=Value". Names
/// are found without regard to ASCII case; blanks around names and values don't count. The first
/// of equal sections or keys is the one that counts. Texts are bytes.
///
/// What the store does not understand stays as it is: comments, blank lines, junk, order, line
/// ends. A new file gets CR LF.
///
/// No file is held open between calls. Each written key is one whole operation: whenever the
/// process is killed, the file is the old one or the one with the key, complete. A symbolic link
/// stays a link, and the file keeps its mode. What other programs do to a file between two calls
/// is seen.
class ProfileStore {
 public:
  /// The size of the buffer that every reader of the program gives.
  static constexpr std::size_t kBufferSize = 1024;

  ProfileStore();
  ~ProfileStore();
  ProfileStore(const ProfileStore&) = delete;
  ProfileStore& operator=(const ProfileStore&) = delete;

  /// The value of the key, cut at `buffer_size` - 1 bytes; empty if the file, the section or the
  /// key is missing or can't be read.
  [[nodiscard]] std::string Read(const std::string& path, std::string_view section,
                                 std::string_view key, std::size_t buffer_size = kBufferSize);

  /// Writes one key, creating the file and the section where they are missing. A new key goes to
  /// the end of its section, before the blank lines that close it; a new section to the end of the
  /// file. Line ends inside `value` would break the file, so the value ends at the first of them.
  /// Returns false, with the file as it was, if the disk is full, if the folder or the file can't
  /// be written, or if no line could hold such names (`ProfileDocument::CanHold`).
  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value);

  /// While a series lives, many keys are written fast: the version before the last key stays
  /// beside the file as a hidden spare (".<name>.corvalis-spare") and takes the next key, then the
  /// two change places. The end of the last series sees the files safely on the disk and removes
  /// the spares.
  class Series {
   public:
    explicit Series(ProfileStore& store);
    ~Series();
    Series(const Series&) = delete;
    Series& operator=(const Series&) = delete;

   private:
    ProfileStore& store_;
  };

 private:
  class Files;
  std::unique_ptr<Files> files_;
};

}  // namespace corvalis
