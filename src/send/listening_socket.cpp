#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "send/group.h"
#include "send/socket_server.h"

namespace corvalis::send {

namespace {

constexpr int kBacklog = 64;
constexpr mode_t kUserAndGroup = 0660;

std::string SystemWords() { return std::strerror(errno); }

// True if `path` is a socket that nobody listens at any more.
bool IsLeftOver(const std::string& path, const sockaddr_un& address) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISSOCK(status.st_mode)) return false;
  const int probe = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  const bool refused =
      connect(probe, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 &&
      errno == ECONNREFUSED;
  close(probe);
  return refused;
}

}  // namespace

ListeningSocket::~ListeningSocket() {
  if (descriptor_ < 0) return;
  if (!path_.empty()) unlink(path_.c_str());
  close(descriptor_);
}

ListeningSocket::ListeningSocket(ListeningSocket&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)), path_(std::move(other.path_)) {}

ListeningSocket ListeningSocket::AtPath(const std::string& path, const std::string& group,
                                        std::string& error) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) {
    error = "the path of a socket has at most " + std::to_string(sizeof address.sun_path - 1) +
            " bytes";
    return ListeningSocket(-1);
  }
  path.copy(static_cast<char*>(address.sun_path), path.size());
  if (IsLeftOver(path, address)) unlink(path.c_str());
  ListeningSocket made(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  // Between these two nobody else may come in.
  const mode_t before = umask(static_cast<mode_t>(~kUserAndGroup & 0777));
  const bool bound =
      bind(made.descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  error = bound ? "" : path + ": " + SystemWords();
  umask(before);
  if (bound) {
    made.path_ = path;
    if (!group.empty()) error = GiveToGroup(path, group);
  }
  if (error.empty() && listen(made.descriptor_, kBacklog) != 0) error = path + ": " + SystemWords();
  return error.empty() ? std::move(made) : ListeningSocket(-1);
}

ListeningSocket ListeningSocket::OnLoopback(int port, std::string& error) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  ListeningSocket made(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  const int on = 1;
  setsockopt(made.descriptor_, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  if (bind(made.descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
      listen(made.descriptor_, kBacklog) == 0) {
    return made;
  }
  error = "127.0.0.1:" + std::to_string(port) + ": " + SystemWords();
  return ListeningSocket(-1);
}

}  // namespace corvalis::send
