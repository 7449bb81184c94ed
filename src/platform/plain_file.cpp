#include "platform/plain_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>

#include "platform/profile_folder.h"

namespace corvalis {

bool ReadUpTo(int file, std::size_t size, std::string& bytes) {
  bytes.resize(size);
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = ::read(file, bytes.data() + done, size - done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  bytes.resize(done);
  return true;
}

namespace {

// An open file, for as long as it is needed.
class OpenFile {
 public:
  OpenFile(const std::string& path, int flags)
      : file_(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666)) {}
  ~OpenFile() {
    if (file_ >= 0) ::close(file_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] std::optional<std::string> Read(std::size_t limit) const {
    struct stat status {};
    if (file_ < 0 || ::fstat(file_, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::string bytes;
    const std::size_t size = std::min(limit, static_cast<std::size_t>(status.st_size));
    if (!ReadUpTo(file_, size, bytes)) return std::nullopt;
    return bytes;
  }

 private:
  int file_;
};

enum class Place { kFree, kPlainFile, kTaken };

// Asked without opening what is there: some devices do something by that alone.
Place PlaceAt(const std::string& path) {
  if (!path.starts_with('/')) return Place::kTaken;
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return errno == ENOENT ? Place::kFree : Place::kTaken;
  return S_ISREG(status.st_mode) ? Place::kPlainFile : Place::kTaken;
}

}  // namespace

bool IsSameFile(const std::string& path, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(path, other, error) ||
         std::filesystem::weakly_canonical(path, error) ==
             std::filesystem::weakly_canonical(other, error);
}

std::optional<std::string> ReadPlainFile(const std::string& path, std::size_t limit) {
  const Place place = PlaceAt(path);
  if (place == Place::kTaken) return std::nullopt;
  return OpenFile(path, place == Place::kFree ? O_RDONLY | O_CREAT : O_RDONLY).Read(limit);
}

std::optional<std::string> PeekPlainFile(const std::string& path, std::size_t limit) {
  if (PlaceAt(path) != Place::kPlainFile) return std::nullopt;
  return OpenFile(path, O_RDONLY).Read(limit);
}

bool WritePlainFile(const std::string& path, std::string_view bytes) {
  const Place place = PlaceAt(path);
  if (place == Place::kTaken) return false;
  std::string before;
  if (place == Place::kPlainFile) {
    // A file that is write-protected could still be replaced, but that isn't what its owner wants.
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) return false;
    // To be put back if it can only be written in place, and that fails.
    constexpr std::size_t kMostKept = 1 << 20;
    before = OpenFile(path, O_RDONLY).Read(kMostKept).value_or("");
  }
  return ProfileFolder(FollowLinks(path), std::chrono::seconds(1)).Put(bytes, before);
}

}  // namespace corvalis
