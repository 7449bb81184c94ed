#include "machine/line_hold.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>

namespace corvalis::machine {

namespace {

// Opening a line that another program keeps for itself fails, but not for an administrator.
bool KeptByAnother(int descriptor) {
  int exclusive = 0;
  return ioctl(descriptor, TIOCGEXCL, &exclusive) == 0 && exclusive != 0;
}

int Claim(int descriptor) {
  termios settings{};
  if (tcgetattr(descriptor, &settings) != 0) return errno;
  if (KeptByAnother(descriptor)) return EBUSY;
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) return errno == EWOULDBLOCK ? EBUSY : errno;
  return 0;
}

}  // namespace

int LineHold::Take(const std::string& device) {
  Release();
  const int descriptor = open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return errno;
  if (const int error = Claim(descriptor)) {
    close(descriptor);
    return error;
  }
  descriptor_ = descriptor;
  return 0;
}

void LineHold::Release() {
  if (descriptor_ < 0) return;
  termios settings{};
  if (tcgetattr(descriptor_, &settings) == 0) {
    settings.c_cflag &= ~static_cast<tcflag_t>(HUPCL);
    tcsetattr(descriptor_, TCSANOW, &settings);
  }
  close(descriptor_);
  descriptor_ = -1;
}

int LineHold::Unsent() const {
  int count = 0;
  return descriptor_ >= 0 && ioctl(descriptor_, TIOCOUTQ, &count) == 0 ? count : 0;
}

bool LineHold::Alive() const {
  pollfd line{descriptor_, 0, 0};
  return descriptor_ >= 0 && poll(&line, 1, 0) >= 0 &&
         (line.revents & (POLLERR | POLLHUP | POLLNVAL)) == 0;
}

}  // namespace corvalis::machine
