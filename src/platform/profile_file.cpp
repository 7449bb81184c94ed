#include "platform/profile_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>
#include <utility>

namespace corvalis {

namespace {

using Range = ProfileDocument::Range;

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// The file that symbolic links lead to, there or not.
std::string FollowLinks(std::string path) {
  constexpr int kMostLinks = 40;  // as many as the kernel follows
  for (int i = 0; i < kMostLinks; ++i) {
    std::array<char, PATH_MAX> link;
    const ssize_t size = ::readlink(path.c_str(), link.data(), link.size());
    if (size <= 0) break;
    const std::string to(link.data(), static_cast<std::size_t>(size));
    path = to.front() == '/' ? to : FolderOf(path).append(to);
  }
  return path;
}

std::string SpareOf(const std::string& path) {
  constexpr std::size_t kLongest = 200;  // leaves room in a file name of 255 bytes
  const std::string folder = FolderOf(path);
  const std::string name = path.substr(path.rfind('/') + 1).substr(0, kLongest);
  return folder + "." + name + ".corvalis-spare";
}

/// Keeps a second program of this kind from saving in the same folder while a key is written.
class FolderLock {
 public:
  explicit FolderLock(const std::string& file)
      : folder_(::open(FolderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    // Where the file system knows no locks, the key is written without.
    if (folder_ >= 0) ::flock(folder_, LOCK_EX);
  }
  ~FolderLock() {
    if (folder_ >= 0) ::close(folder_);
  }
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  void SeeToDisk() const {
    if (folder_ >= 0) ::fsync(folder_);
  }

 private:
  int folder_;
};

/// The clock from which the file system takes its times.
timespec FileClock() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return now;
}

bool ReadAll(int file, off_t size, std::string& text) {
  text.resize(static_cast<std::size_t>(size));
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t got = ::read(file, text.data() + done, text.size() - done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  text.resize(done);
  return true;
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

bool ProfileFile::Write(std::string_view section, std::string_view key, std::string_view value,
                        bool in_series) {
  if (!ProfileDocument::CanHold(section, key)) return false;
  std::string target = FollowLinks(path_);
  if (target != target_) {
    EndSeries();
    target_ = std::move(target);
  }
  const FolderLock lock(target_);
  if (!Refresh()) return false;
  // A file that is write-protected could still be replaced, but that isn't what its owner wants.
  if (!stamp_.Missing() && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) {
    return false;
  }
  const Range edit = document_.Set(section, key, value);
  if (edit.Empty()) return true;
  // Until the key is in the file, the document is ahead of it.
  loaded_ = false;
  return loaded_ = Save(edit, in_series);
}

void ProfileFile::EndSeries() {
  if (!touched_) return;
  const FolderLock lock(target_);
  ::unlink(SpareOf(target_).c_str());
  const int file = ::open(target_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file >= 0) {
    ::fsync(file);
    ::close(file);
  }
  lock.SeeToDisk();
  touched_ = made_here_ = has_spare_ = false;
}

/// Makes the document that of the file; a missing file is an empty one. False if there is something
/// that can't be read or is no plain file.
bool ProfileFile::Refresh() {
  struct stat status {};
  if (::stat(path_.c_str(), &status) != 0) {
    if (errno != ENOENT && errno != ENOTDIR) return loaded_ = false;
    if (!loaded_ || !stamp_.Missing()) document_.Parse({});
    stamp_ = {};
    made_here_ = has_spare_ = false;
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
  const bool read =
      ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && ReadAll(file, status.st_size, text);
  ::close(file);
  if (!read) return false;

  const Stamp stamp(status);
  // A second change within one tick of the file system's clock would leave the same time.
  settled_ = std::pair(stamp.seconds, stamp.nanoseconds) < std::pair(now.tv_sec, now.tv_nsec);
  if (!had_document || text != document_.Text()) {
    document_.Parse(std::move(text));
    made_here_ = has_spare_ = false;
  }
  if (stamp != stamp_) made_here_ = has_spare_ = false;
  stamp_ = stamp;
  return loaded_ = true;
}

/// Brings the spare to the document's text and puts it in the file's place.
bool ProfileFile::Save(const Range& edit, bool in_series) {
  const std::string spare = SpareOf(target_);
  touched_ = touched_ || in_series;
  bool put = false;
  int file = has_spare_ ? OpenSpare() : -1;
  if (file >= 0) {
    if (edit.Touches(spare_lag_)) {
      put = Put(file, {std::min(edit.from, spare_lag_.from), std::max(edit.to, spare_lag_.to)});
    } else {
      put = Put(file, spare_lag_) && Put(file, edit);
    }
    const auto size = static_cast<off_t>(document_.Text().size());
    if (size < spare_stamp_.size) put = put && ::ftruncate(file, size) == 0;
  } else {
    file = CreateSpare();
    if (file < 0) return false;
    put = Put(file, {0, Range::kEnd});
  }
  const bool exchange = std::exchange(made_here_, in_series) && in_series;
  has_spare_ = false;
  Stamp stamp;
  bool settled = false;
  put = Finish(file, stamp, settled) && put;
  if (!put || !ChangePlaces(exchange, has_spare_)) {
    ::unlink(spare.c_str());
    return false;
  }
  spare_stamp_ = std::exchange(stamp_, stamp);
  spare_lag_ = edit;
  settled_ = settled;
  return true;
}

/// The spare, if it is still the one that this series left.
int ProfileFile::OpenSpare() const {
  const int file = ::open(SpareOf(target_).c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (file < 0 || (::fstat(file, &status) == 0 && Stamp(status) == spare_stamp_)) return file;
  ::close(file);
  return -1;
}

/// An empty spare with the file's mode and owner, in place of one that a killed program left.
int ProfileFile::CreateSpare() const {
  constexpr mode_t kPermissions = 07777;
  constexpr mode_t kNewFile = 0666;
  const std::string spare = SpareOf(target_);
  ::unlink(spare.c_str());
  const int file = ::open(spare.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                          stamp_.Missing() ? kNewFile : S_IRUSR | S_IWUSR);
  if (file < 0 || stamp_.Missing()) return file;
  // Who may not give a file away keeps it; the group's rights may then not go to another group.
  mode_t mode = stamp_.mode & kPermissions;
  if (::fchown(file, stamp_.owner, stamp_.group) != 0 &&
      ::fchown(file, static_cast<uid_t>(-1), stamp_.group) != 0) {
    mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
  }
  ::fchmod(file, mode);
  return file;
}

bool ProfileFile::Put(int file, const Range& range) const {
  const std::string& text = document_.Text();
  const std::size_t end = std::min(range.to, text.size());
  for (std::size_t at = range.from; at < end;) {
    const ssize_t put = ::pwrite(file, text.data() + at, end - at, static_cast<off_t>(at));
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    at += static_cast<std::size_t>(put);
  }
  return true;
}

/// Closes the file and tells its stamp. The file gets a time finer than the tick of the file
/// system's clock, so that a change by another program within the same tick shows.
bool ProfileFile::Finish(int file, Stamp& stamp, bool& settled) {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, now};
  ::futimens(file, times.data());
  struct stat status {};
  const bool good = ::fstat(file, &status) == 0;
  stamp = Stamp(status);
  settled = stamp.seconds == now.tv_sec && stamp.nanoseconds == now.tv_nsec;
  return ::close(file) == 0 && good;
}

/// Puts the spare in the file's place; with `exchange` the file becomes the spare, where the file
/// system can do that.
bool ProfileFile::ChangePlaces(bool exchange, bool& spare_remains) const {
  const std::string spare = SpareOf(target_);
  spare_remains = exchange && ::renameat2(AT_FDCWD, spare.c_str(), AT_FDCWD, target_.c_str(),
                                          RENAME_EXCHANGE) == 0;
  return spare_remains || ::rename(spare.c_str(), target_.c_str()) == 0;
}

}  // namespace corvalis
