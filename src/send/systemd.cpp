#include "send/systemd.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <charconv>
#include <cstddef>
#include <cstdlib>

namespace corvalis::send {

namespace {

constexpr int kFirstHanded = 3;
constexpr int kMostHanded = 16;

long NumberIn(const char* variable) {
  const char* text = std::getenv(variable);
  if (text == nullptr) return -1;
  const std::string_view digits = text;
  long number = -1;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

}  // namespace

void TellServiceManager(std::string_view state) {
  const char* name = std::getenv("NOTIFY_SOCKET");
  if (name == nullptr) return;
  const std::string_view path = name;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() < 2 || path.size() >= sizeof address.sun_path) return;
  path.copy(static_cast<char*>(address.sun_path), path.size());
  // A name that is no path begins with a byte of 0.
  if (path.front() == '@') address.sun_path[0] = '\0';
  const int out = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + path.size());
  static_cast<void>(sendto(out, state.data(), state.size(), MSG_NOSIGNAL,
                           reinterpret_cast<const sockaddr*>(&address), length));
  close(out);
}

std::vector<int> SocketsOfServiceManager() {
  std::vector<int> sockets;
  if (NumberIn("LISTEN_PID") == static_cast<long>(getpid())) {
    const long count = NumberIn("LISTEN_FDS");
    for (int i = 0; i < count && i < kMostHanded; ++i) {
      const int descriptor = kFirstHanded + i;
      fcntl(descriptor, F_SETFD, FD_CLOEXEC);
      fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
      sockets.push_back(descriptor);
    }
  }
  for (const char* variable : {"LISTEN_PID", "LISTEN_FDS", "LISTEN_FDNAMES"}) unsetenv(variable);
  return sockets;
}

}  // namespace corvalis::send
