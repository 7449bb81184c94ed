#include "coder/outlet.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace corvalis::coder {

namespace {

constexpr std::string_view kStandardOutput = "-";
// A description of its own, so that not waiting is no affair of who else has the same output.
constexpr const char* kOwnStandardOutput = "/proc/self/fd/1";
constexpr int kFlags = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
// Of a pipe: what a player takes at once, and not so much that what it plays is old.
constexpr int kPipeBytes = 1 << 18;
constexpr mode_t kMode = 0666;

}  // namespace

Outlet::Outlet(std::string path) : path_(std::move(path)) {
  struct stat status {};
  errno = 0;
  if (path_ == kStandardOutput) {
    const bool known = fstat(STDOUT_FILENO, &status) == 0;
    const bool waits = known && (S_ISFIFO(status.st_mode) || S_ISCHR(status.st_mode));
    descriptor_ = waits ? open(kOwnStandardOutput, kFlags) : -1;
    if (descriptor_ < 0) descriptor_ = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
  } else if (stat(path_.c_str(), &status) == 0 && S_ISFIFO(status.st_mode)) {
    is_fifo_ = true;
    OpenFifo();
    if (descriptor_ < 0 && errno == ENXIO) return;
  } else {
    descriptor_ = open(path_.c_str(), kFlags | O_CREAT | O_TRUNC, kMode);
  }
  if (descriptor_ < 0) {
    throw CannotWrite("cannot write " + path_ + ": " + std::strerror(errno));
  }
  Opened();
}

Outlet::~Outlet() {
  if (descriptor_ >= 0) close(descriptor_);
}

Outlet::Outlet(Outlet&& other) noexcept
    : path_(std::move(other.path_)),
      descriptor_(std::exchange(other.descriptor_, -1)),
      is_fifo_(other.is_fifo_),
      is_file_(other.is_file_),
      was_read_(other.was_read_),
      fresh_(other.fresh_),
      stuck_(other.stuck_),
      left_(std::move(other.left_)) {}

void Outlet::OpenFifo() { descriptor_ = open(path_.c_str(), kFlags); }

void Outlet::Opened() {
  struct stat status {};
  was_read_ = fresh_ = true;
  is_file_ = fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
  if (S_ISFIFO(status.st_mode)) fcntl(descriptor_, F_SETPIPE_SZ, kPipeBytes);
}

Outlet::State Outlet::Look() {
  if (descriptor_ < 0 && is_fifo_) {
    OpenFifo();
    if (descriptor_ >= 0) Opened();
  }
  if (descriptor_ >= 0) Flush();
  if (descriptor_ < 0) return was_read_ ? State::kGone : State::kUnread;
  if (stuck_) return State::kGone;
  return left_.empty() ? State::kReady : State::kBusy;
}

void Outlet::Put(std::string_view bytes) {
  left_.append(bytes);
  Flush();
}

bool Outlet::TakeFresh() { return std::exchange(fresh_, false); }

void Outlet::PutOver(std::string_view front) const {
  // That it cannot be is no worse than not having tried.
  if (is_file_) static_cast<void>(!pwrite(descriptor_, front.data(), front.size(), 0));
}

std::uint64_t Outlet::FileBytes() const {
  struct stat status {};
  if (!is_file_ || fstat(descriptor_, &status) != 0) return 0;
  return static_cast<std::uint64_t>(status.st_size);
}

void Outlet::Flush() {
  stuck_ = false;
  while (!left_.empty()) {
    const ssize_t count = write(descriptor_, left_.data(), left_.size());
    if (count > 0) {
      left_.erase(0, static_cast<std::size_t>(count));
    } else if (count < 0 && errno == EPIPE) {
      // The next reader begins with something whole.
      close(std::exchange(descriptor_, -1));
      left_.clear();
    } else {
      stuck_ = count < 0 && errno != EAGAIN && errno != EINTR;
      return;
    }
  }
}

}  // namespace corvalis::coder
