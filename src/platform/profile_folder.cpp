#include "platform/profile_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <system_error>
#include <thread>
#include <vector>

namespace corvalis {

namespace {

namespace fs = std::filesystem;

constexpr const char* kAccessList = "system.posix_acl_access";

bool WriteWhole(int file, std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const ssize_t put = ::pwrite(file, text.data() + at, text.size() - at, static_cast<off_t>(at));
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    at += static_cast<std::size_t>(put);
  }
  return ::ftruncate(file, static_cast<off_t>(text.size())) == 0 && ::fsync(file) == 0;
}

}  // namespace

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

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

ProfileFolder::ProfileFolder(const std::string& file, std::chrono::milliseconds lock_wait)
    : file_(file), folder_(::open(FolderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  constexpr std::size_t kLongest = 200;  // leaves room in a file name of 255 bytes
  const std::string name = file.substr(file.rfind('/') + 1).substr(0, kLongest);
  prefix_ = FolderOf(file).append(".").append(name).append(".corvalis-new-");
  constexpr auto kBetweenTries = std::chrono::milliseconds(5);
  const auto deadline = std::chrono::steady_clock::now() + lock_wait;
  while (folder_ >= 0 && ::flock(folder_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
         std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(kBetweenTries);
  }
}

ProfileFolder::~ProfileFolder() {
  if (folder_ >= 0) ::close(folder_);
}

bool ProfileFolder::Put(std::string_view text, std::string_view before) const {
  RemoveLeftovers();
  std::string name;
  const int file = CreateBeside(name);
  if (file < 0) return PutInPlace(text, before);
  MakeAlike(file);
  const bool written = WriteWhole(file, text);
  if (::close(file) == 0 && written && ::rename(name.c_str(), file_.c_str()) == 0) {
    return SyncFolder();
  }
  ::unlink(name.c_str());
  // In a folder where all may make files, only its owner may replace one.
  return written && PutInPlace(text, before);
}

bool ProfileFolder::Sync() const {
  const int file = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  const bool good = file >= 0 && ::fsync(file) == 0;
  if (file >= 0) ::close(file);
  return good && SyncFolder();
}

/// What killed programs left. Another user's may have to stay.
void ProfileFolder::RemoveLeftovers() const {
  std::error_code error;
  for (fs::directory_iterator entry(FolderOf(file_), error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string path = entry->path().string();
    if (path.starts_with(prefix_)) ::unlink(path.c_str());
  }
}

/// A new file under a name that nobody has; -1 if the folder takes none.
int ProfileFolder::CreateBeside(std::string& name) const {
  struct stat status {};
  const bool is_new = ::stat(file_.c_str(), &status) != 0;
  const mode_t mode = is_new ? 0666 : S_IRUSR | S_IWUSR;
  constexpr int kMostTries = 100;
  int file = -1;
  for (int i = 0; i < kMostTries && file < 0; ++i) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    name = prefix_ + std::to_string(::getpid()) + "-" + std::to_string(now);
    file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0 && errno != EEXIST) break;
  }
  return file;
}

/// Gives the new file what the old one has, if there is an old one. What can't be kept takes the
/// group's rights with it: they are for this group alone, and with a list they are its mask.
void ProfileFolder::MakeAlike(int file) const {
  struct stat old {};
  if (::stat(file_.c_str(), &old) != 0) return;
  constexpr auto kSame = static_cast<uid_t>(-1);
  bool kept = ::fchown(file, old.st_uid, old.st_gid) == 0 || ::fchown(file, kSame, old.st_gid) == 0;
  const ssize_t size = ::getxattr(file_.c_str(), kAccessList, nullptr, 0);
  if (size > 0) {
    std::vector<char> list(static_cast<std::size_t>(size));
    const ssize_t got = ::getxattr(file_.c_str(), kAccessList, list.data(), list.size());
    kept = got == size && ::fsetxattr(file, kAccessList, list.data(), list.size(), 0) == 0 && kept;
  } else {
    ::fremovexattr(file, kAccessList);  // which the folder may give to each new file
  }
  constexpr mode_t kPermissions = 07777;
  constexpr mode_t kOfGroup = S_ISUID | S_ISGID | S_IRWXG;
  ::fchmod(file, old.st_mode & kPermissions & ~(kept ? mode_t{0} : kOfGroup));
}

bool ProfileFolder::PutInPlace(std::string_view text, std::string_view before) const {
  const int file = ::open(file_.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  const bool good = WriteWhole(file, text);
  // The old text has its room on the disk already.
  if (!good && !WriteWhole(file, before)) ::fsync(file);
  return ::close(file) == 0 && good;
}

/// Nothing is said against a folder that can't be asked for it.
bool ProfileFolder::SyncFolder() const {
  return folder_ < 0 || ::fsync(folder_) == 0 || errno == EINVAL;
}

}  // namespace corvalis
