#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace corvalis {

/// Sections and keys in text files, one key a call: lines of "[Section]" and "Key=Value". Names
/// are found without regard to ASCII case; blanks around names and values don't count. The first
/// of equal sections or keys is the one that counts. Texts are bytes.
///
/// What the store does not understand stays as it is: comments, blank lines, junk, order, line
/// ends. A new file gets CR LF.
///
/// No file is held open between calls. What is written is one whole operation: whenever the process
/// is killed or the machine loses its power, the file is the old one or the new one, complete. A
/// symbolic link stays a link, and the file keeps its owner, group, mode and access list. What
/// other programs do to a file between two calls is seen.
class ProfileStore {
 public:
  /// The size of the buffer that every reader of the program gives.
  static constexpr std::size_t kBufferSize = 1024;

  /// `lock_wait` is how long a write waits for another program that has locked the folder; it then
  /// goes on without the lock.
  explicit ProfileStore(std::chrono::milliseconds lock_wait = std::chrono::seconds(1));
  ~ProfileStore();
  ProfileStore(const ProfileStore&) = delete;
  ProfileStore& operator=(const ProfileStore&) = delete;

  /// The value of the key without the blanks around it and one pair of quotes (" or '), cut at
  /// `buffer_size` - 1 bytes; empty if the file, the section or the key is missing or can't be
  /// read.
  [[nodiscard]] std::string Read(const std::string& path, std::string_view section,
                                 std::string_view key, std::size_t buffer_size = kBufferSize);

  /// All keys of the section, in small letters, with the values that `Read` gives for them; none if
  /// the file or the section is missing or can't be read.
  [[nodiscard]] std::unordered_map<std::string, std::string> ReadSection(const std::string& path,
                                                                         std::string_view section);

  /// Writes one key, creating the file and the section where they are missing. A new key goes to
  /// the end of its section, before the blank lines that close it; a new section to the end of the
  /// file. Line ends inside `value` would break the file, so the value ends at the first of them.
  /// True if the key is on the disk to stay, or taken into the series that is under way. False,
  /// with the file as it was, if the disk is full, if the folder and the file can't be written, or
  /// if no line could hold such names (`ProfileDocument::CanHold`).
  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value);

  /// While a series lives, all that is written is one operation for each file: it is kept in
  /// memory, where reading finds it, and put on the disk at the end. Of series within a series only
  /// the outermost counts.
  class Series {
   public:
    explicit Series(ProfileStore& store);
    ~Series();
    Series(const Series&) = delete;
    Series& operator=(const Series&) = delete;

    /// Ends the series. True if everything that was written in it, to all files, is on the disk to
    /// stay; otherwise each file that failed is as it was. A file that had its keys already isn't
    /// written and counts as good. Within another series: whether all was taken so far. Once only;
    /// a series that isn't finished by hand ends with its life.
    bool Finish();

   private:
    ProfileStore* store_;  // null once finished
  };

  /// While it lives no file is written: what would be is caught here, whatever file it is for.
  /// Reading finds the files as they are. One at a time.
  class Catch {
   public:
    explicit Catch(ProfileStore& store);
    ~Catch();
    Catch(const Catch&) = delete;
    Catch& operator=(const Catch&) = delete;

    /// Section, key and value of each write, in their order.
    [[nodiscard]] const std::string& Text() const { return text_; }

   private:
    ProfileStore& store_;
    std::string text_;
  };
  /// True while writes are caught. Whoever writes then lets no event run, whose own writes would be
  /// caught too.
  [[nodiscard]] bool Catching() const { return caught_ != nullptr; }

 private:
  class Files;
  std::unique_ptr<Files> files_;
  std::string* caught_ = nullptr;
};

}  // namespace corvalis
