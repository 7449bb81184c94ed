#include "radio/group_source.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "air/hex_text.h"

namespace corvalis::radio {

namespace {

constexpr std::size_t kRead = 64UL * 1024;  // bytes at once
constexpr std::size_t kLongestLine = 1024;
constexpr int kOpen = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;

std::string InWords(int error) { return std::generic_category().message(error); }

}  // namespace

std::string GroupSource::Open(const std::string& path) {
  Close();
  const bool standard = path == "-";
  const int file =
      standard ? ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0) : ::open(path.c_str(), kOpen);
  if (file < 0) return path + ": " + InWords(errno);
  struct stat status {};
  ::fstat(file, &status);
  if (S_ISDIR(status.st_mode)) {
    ::close(file);
    return path + ": " + InWords(EISDIR);
  }
  path_ = path;
  file_ = file;
  fifo_ = S_ISFIFO(status.st_mode) && !standard;
  pollable_ = !S_ISREG(status.st_mode);
  state_ = State::kWaiting;
  return {};
}

void GroupSource::Close() {
  if (file_ >= 0) ::close(file_);
  file_ = -1;
  pollable_ = fifo_ = skips_ = false;
  held_.clear();
  at_ = 0;
  passed_over_ = 0;
  failure_.clear();
  state_ = State::kClosed;
}

bool GroupSource::Read(std::vector<air::HeardGroup>& groups, std::size_t most) {
  const std::size_t end = groups.size() + most;
  if (file_ < 0 || state_ == State::kFailed) return false;
  bool filled = false;
  while (groups.size() < end) {
    if (TakeLine(groups)) continue;
    if (filled) return true;  // one portion of bytes a call, however little is in it
    filled = true;
    if (Fill()) continue;
    if (state_ == State::kEnded) TakeLast(groups);
    return false;
  }
  return true;
}

// A line that is complete, if there is one.
bool GroupSource::TakeLine(std::vector<air::HeardGroup>& groups) {
  const std::size_t end = held_.find('\n', at_);
  if (end == std::string::npos) {
    held_.erase(0, at_);
    at_ = 0;
    if (held_.size() > kLongestLine) {
      held_.clear();
      skips_ = true;
    }
    return false;
  }
  TakeLine(std::string_view(held_).substr(at_, end - at_), groups);
  at_ = end + 1;
  return true;
}

void GroupSource::TakeLine(std::string_view line, std::vector<air::HeardGroup>& groups) {
  if (std::exchange(skips_, false)) return;
  if (const auto group = air::ReadHexLine(line)) {
    groups.push_back(*group);
  } else if (!line.empty()) {
    ++passed_over_;
  }
}

// The last line may lack its end. What may follow behind a whole group says nothing.
void GroupSource::TakeLast(std::vector<air::HeardGroup>& groups) {
  const auto group = skips_ ? std::nullopt : air::ReadHexLine(std::string_view(held_).substr(at_));
  if (group) groups.push_back(*group);
  if (!group && !pollable_) return;
  held_.clear();
  at_ = 0;
  skips_ = !pollable_;  // another writer begins a line
}

// Reads what is there behind what is held; false if that is nothing.
bool GroupSource::Fill() {
  pollfd asked{.fd = file_, .events = POLLIN, .revents = 0};
  if (pollable_ && ::poll(&asked, 1, 0) <= 0) return false;
  const std::size_t before = held_.size();
  held_.resize(before + kRead);
  const ssize_t got = ::read(file_, held_.data() + before, kRead);
  const int error = errno;
  held_.resize(before + static_cast<std::size_t>(got > 0 ? got : 0));
  if (got > 0) {
    state_ = State::kComing;
  } else if (got == 0) {
    EndOfInput();
  } else if (error != EAGAIN && error != EINTR) {
    Fail(error);
  }
  return got > 0;
}

void GroupSource::EndOfInput() {
  state_ = State::kEnded;
  if (!pollable_) {
    // Written anew, it begins again.
    struct stat status {};
    const off_t here = ::lseek(file_, 0, SEEK_CUR);
    if (::fstat(file_, &status) == 0 && status.st_size < here) ::lseek(file_, 0, SEEK_SET);
  } else if (fifo_) {
    // Only an open of its own waits quietly for the next writer.
    const int again = ::open(path_.c_str(), kOpen);
    if (again < 0) return Fail(errno);
    ::close(file_);
    file_ = again;
  }
}

void GroupSource::Fail(int error) {
  failure_ = path_ + ": " + InWords(error);
  state_ = State::kFailed;
}

}  // namespace corvalis::radio
