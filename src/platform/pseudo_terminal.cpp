#include "platform/pseudo_terminal.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace corvalis {

namespace {

namespace fs = std::filesystem;

struct Speed {
  speed_t name;
  int baud;
};
constexpr std::array kSpeeds = {
    Speed{B300, 300},     Speed{B600, 600},       Speed{B1200, 1200},   Speed{B2400, 2400},
    Speed{B4800, 4800},   Speed{B9600, 9600},     Speed{B19200, 19200}, Speed{B38400, 38400},
    Speed{B57600, 57600}, Speed{B115200, 115200},
};

[[noreturn]] void Fail(const std::string& what) {
  throw std::runtime_error(what + ": " + std::generic_category().message(errno));
}

}  // namespace

PseudoTerminal::PseudoTerminal(std::string link) : link_(std::move(link)) {
  try {
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
      Fail("no pseudo-terminal to be had");
    }
    std::array<char, 64> name{};
    if (ptsname_r(master_, name.data(), name.size()) != 0) Fail("the terminal has no name");
    path_ = name.data();
    slave_ = open(path_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave_ < 0) Fail("cannot open " + path_);
    termios settings{};
    tcgetattr(slave_, &settings);
    cfmakeraw(&settings);
    if (tcsetattr(slave_, TCSANOW, &settings) != 0) Fail("cannot set up " + path_);
    watch_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (watch_ >= 0) inotify_add_watch(watch_, path_.c_str(), IN_CLOSE);
    if (!link_.empty()) MakeLink();
  } catch (...) {
    Close();
    throw;
  }
}

PseudoTerminal::~PseudoTerminal() {
  if (!link_.empty() && LinkLeadsHere()) unlink(link_.c_str());
  Close();
}

void PseudoTerminal::Close() const {
  for (const int descriptor : {watch_, slave_, master_}) {
    if (descriptor >= 0) close(descriptor);
  }
}

void PseudoTerminal::MakeLink() const {
  const fs::path link = link_;
  std::error_code error;
  if (fs::symlink_status(link, error).type() != fs::file_type::not_found) {
    // read_symlink fails on anything that is no link
    const std::string old = fs::read_symlink(link, error).string();
    if (error || !old.starts_with("/dev/pts/")) {
      throw std::runtime_error(
          link_ + " is there and does not lead to a line of this kind; it stays as it is");
    }
  }
  if (link.has_parent_path()) fs::create_directories(link.parent_path(), error);
  // Made aside and renamed, so that the link leads somewhere at any moment.
  const std::string aside = link_ + "." + std::to_string(getpid());
  if (symlink(path_.c_str(), aside.c_str()) != 0) Fail("cannot make the link " + link_);
  if (rename(aside.c_str(), link_.c_str()) != 0) {
    const int reason = errno;
    unlink(aside.c_str());
    errno = reason;
    Fail("cannot make the link " + link_);
  }
}

bool PseudoTerminal::LinkLeadsHere() const {
  std::error_code error;
  return fs::read_symlink(link_, error) == path_;
}

void PseudoTerminal::Closed() const {
  std::array<char, 4096> events{};
  while (read(watch_, events.data(), events.size()) > 0) {
  }
  ioctl(slave_, TIOCNXCL);
}

std::vector<std::uint8_t> PseudoTerminal::Read() const {
  std::array<std::uint8_t, 4096> buffer{};
  const ssize_t count = read(master_, buffer.data(), buffer.size());
  return {buffer.begin(), buffer.begin() + (count > 0 ? count : 0)};
}

void PseudoTerminal::Write(const std::vector<std::uint8_t>& bytes) const {
  // A short count means that nobody reads.
  static_cast<void>(!write(master_, bytes.data(), bytes.size()));
}

PseudoTerminal::Settings PseudoTerminal::CurrentSettings() const {
  termios now{};
  Settings settings;
  if (tcgetattr(slave_, &now) != 0) return settings;
  for (const Speed& speed : kSpeeds) {
    if (speed.name == cfgetospeed(&now)) settings.baud = speed.baud;
  }
  settings.stop_bits = (now.c_cflag & CSTOPB) != 0 ? 2 : 1;
  return settings;
}

}  // namespace corvalis
