#include "send/socket_server.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTimer>
#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace corvalis::send {

namespace {

constexpr std::size_t kMostClients = 64;
constexpr std::size_t kMostUnsent = 65536;  // answers that a client doesn't take
constexpr std::size_t kPortion = 4096;

bool WouldBlock() { return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR; }

}  // namespace

class SocketServer::Client {
 public:
  Client(int descriptor, Dispatcher& dispatcher, Conversation::Manners manners)
      : descriptor_(descriptor),
        conversation_(dispatcher, manners),
        reads_(descriptor, QSocketNotifier::Read),
        writes_(descriptor, QSocketNotifier::Write) {
    QObject::connect(&reads_, &QSocketNotifier::activated, &reads_, [this] { Read(); });
    QObject::connect(&writes_, &QSocketNotifier::activated, &writes_, [this] { Flush(); });
    conversation_.OnAnswers([this] { Flush(); });
    writes_.setEnabled(false);
  }
  ~Client() {
    conversation_.OnAnswers(nullptr);
    close(descriptor_);
  }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  [[nodiscard]] bool Gone() const {
    return broken_ || (ended_ && !conversation_.Owes() && unsent_.empty());
  }
  // Called when it has gone.
  std::function<void()> Left;

 private:
  void Read() {
    std::array<char, kPortion> bytes{};
    const ssize_t count = recv(descriptor_, bytes.data(), bytes.size(), 0);
    if (count > 0) {
      conversation_.Take({bytes.data(), static_cast<std::size_t>(count)});
    } else if (count == 0) {
      ended_ = true;
      conversation_.TakeEnd();
    } else if (!WouldBlock()) {
      broken_ = true;
    }
    Flush();
  }

  void Flush() {
    unsent_ += conversation_.Answers();
    const ssize_t sent = unsent_.empty() ? 0
                                         : ::send(descriptor_, unsent_.data(), unsent_.size(),
                                                  MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent > 0) unsent_.erase(0, static_cast<std::size_t>(sent));
    if (sent < 0 && !WouldBlock()) broken_ = true;
    writes_.setEnabled(!broken_ && !unsent_.empty());
    reads_.setEnabled(!broken_ && !ended_ && !conversation_.Full() && unsent_.size() < kMostUnsent);
    if (Gone() && Left) Left();
  }

  int descriptor_;
  Conversation conversation_;
  QSocketNotifier reads_;
  QSocketNotifier writes_;
  std::string unsent_;
  bool ended_ = false;
  bool broken_ = false;
};

SocketServer::SocketServer(Dispatcher& dispatcher, Conversation::Manners manners)
    : dispatcher_(dispatcher), manners_(manners) {}

SocketServer::~SocketServer() = default;

void SocketServer::Listen(ListeningSocket socket) {
  const Door& door = doors_.emplace_back(std::move(socket));
  QObject::connect(&door.notifier, &QSocketNotifier::activated, &context_,
                   [this, &door] { Accept(door.socket.Descriptor()); });
}

void SocketServer::Accept(int door) {
  const int descriptor = accept4(door, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
  if (descriptor < 0) return;
  if (clients_.size() >= kMostClients) {
    constexpr std::string_view kFull = "error: too many clients\n";
    static_cast<void>(::send(descriptor, kFull.data(), kFull.size(), MSG_NOSIGNAL | MSG_DONTWAIT));
    close(descriptor);
    return;
  }
  auto client = std::make_unique<Client>(descriptor, dispatcher_, manners_);
  // A client that has gone may still be on the stack.
  client->Left = [this] { QTimer::singleShot(0, &context_, [this] { Sweep(); }); };
  clients_.push_back(std::move(client));
}

void SocketServer::Sweep() {
  std::erase_if(clients_, [](const auto& client) { return client->Gone(); });
}

}  // namespace corvalis::send
