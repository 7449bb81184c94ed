#include "platform/profile_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <utility>

#include "platform/plain_file.h"
#include "platform/profile_folder.h"

namespace corvalis {

namespace {

/// The clock from which the file system takes its times.
timespec FileClock() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return now;
}

}  // namespace

ProfileFile::Stamp::Stamp(const struct stat& status)
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      seconds(status.st_mtim.tv_sec),
      nanoseconds(status.st_mtim.tv_nsec),
      mode(status.st_mode),
      owner(status.st_uid),
      group(status.st_gid) {}

std::optional<std::string_view> ProfileFile::Read(std::string_view section, std::string_view key) {
  if (!Refresh()) return std::nullopt;
  return document_.Value(section, key);
}

std::unordered_map<std::string, std::string> ProfileFile::ReadSection(std::string_view section) {
  if (!Refresh()) return {};
  return document_.Values(section);
}

bool ProfileFile::Edit(std::string_view section, std::string_view key, std::string_view value) {
  if (!ProfileDocument::CanHold(section, key)) return false;
  // The commit looks at the file anyhow.
  if (changes_.empty() && !Refresh()) return false;
  value = value.substr(0, value.find_first_of("\r\n"));
  for (const std::string_view part : {section, key, value}) changes_.append(part).append("\n");
  document_.Set(section, key, value);
  return true;
}

bool ProfileFile::Commit(std::chrono::milliseconds lock_wait) {
  if (changes_.empty()) return true;
  const std::string file = FollowLinks(path_);
  const ProfileFolder folder(file, lock_wait);
  const bool readable = Refresh();
  changes_.clear();
  if (!readable) return false;
  std::string text = document_.Text();
  if (text == text_) return folder.Sync();
  // Until the edits are in the file, the document is ahead of it.
  loaded_ = false;
  // A file that is write-protected could still be replaced, but that isn't what its owner wants.
  if (!stamp_.Missing() && ::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) return false;
  if (!folder.Put(text, text_)) return false;
  text_ = std::move(text);
  settled_ = false;
  return loaded_ = true;
}

/// Makes the document that of the file with the edits; a missing file is an empty one. False if
/// there is something that can't be read or is no plain file.
bool ProfileFile::Refresh() {
  struct stat status {};
  if (::stat(path_.c_str(), &status) != 0) {
    if (errno != ENOENT && errno != ENOTDIR) return loaded_ = false;
    if (!loaded_ || !text_.empty()) Take({});
    stamp_ = {};
    return loaded_ = settled_ = true;
  }
  if (!S_ISREG(status.st_mode)) return loaded_ = false;
  if (loaded_ && settled_ && Stamp(status) == stamp_) return true;
  return Load();
}

bool ProfileFile::Load() {
  const bool had_document = std::exchange(loaded_, false);
  const timespec now = FileClock();
  const int file = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  struct stat status {};
  std::string text;
  const bool read = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) &&
                    ReadUpTo(file, static_cast<std::size_t>(status.st_size), text);
  ::close(file);
  if (!read) return false;

  stamp_ = Stamp(status);
  // A second change within one tick of the file system's clock would leave the same time.
  settled_ = std::pair(stamp_.seconds, stamp_.nanoseconds) < std::pair(now.tv_sec, now.tv_nsec);
  if (!had_document || text != text_) Take(std::move(text));
  return loaded_ = true;
}

/// Takes a new text of the file, and does the edits to it too: neither program loses a key.
void ProfileFile::Take(std::string text) {
  text_ = std::move(text);
  document_.Parse(text_);
  std::string_view changes = changes_;
  const auto next = [&changes] {
    const std::string_view part = changes.substr(0, changes.find('\n'));
    changes.remove_prefix(part.size() + 1);
    return part;
  };
  while (!changes.empty()) {
    const std::string_view section = next(), key = next();
    document_.Set(section, key, next());
  }
}

}  // namespace corvalis
