#pragma once

#include <QSocketNotifier>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <utility>

#include "send/conversation.h"

namespace corvalis::send {

/// A socket of this machine, for as long as this lives.
class ListeningSocket {
 public:
  /// Takes what the system has handed over.
  explicit ListeningSocket(int descriptor) : descriptor_(descriptor) {}
  ~ListeningSocket();
  ListeningSocket(ListeningSocket&& other) noexcept;
  ListeningSocket(const ListeningSocket&) = delete;
  ListeningSocket& operator=(const ListeningSocket&) = delete;
  ListeningSocket& operator=(ListeningSocket&&) = delete;

  /// Makes a Unix socket at `path`, for the user and the group, which is `group` unless that is
  /// empty. What a killed service has left there is taken away. On a failure the descriptor is
  /// negative and `error` a sentence.
  [[nodiscard]] static ListeningSocket AtPath(const std::string& path, const std::string& group,
                                              std::string& error);
  /// Makes a TCP socket on the loopback of this machine, port 1 to 65535.
  [[nodiscard]] static ListeningSocket OnLoopback(int port, std::string& error);

  [[nodiscard]] int Descriptor() const { return descriptor_; }

 private:
  int descriptor_;
  std::string path_;  // taken away at the end; empty: none
};

/// Clients on sockets, each with a conversation of its own. A client that sends garbage or nothing,
/// or doesn't take its answers, has a small and bounded share of the memory, and disturbs nobody.
class SocketServer {
 public:
  SocketServer(Dispatcher& dispatcher, Conversation::Manners manners);
  ~SocketServer();
  SocketServer(const SocketServer&) = delete;
  SocketServer& operator=(const SocketServer&) = delete;

  void Listen(ListeningSocket socket);

 private:
  class Client;
  struct Door {
    explicit Door(ListeningSocket opened)
        : socket(std::move(opened)), notifier(socket.Descriptor(), QSocketNotifier::Read) {}
    ListeningSocket socket;
    QSocketNotifier notifier;
  };

  void Accept(int door);
  void Sweep();

  Dispatcher& dispatcher_;
  Conversation::Manners manners_;
  std::list<Door> doors_;
  std::list<std::unique_ptr<Client>> clients_;
  QObject context_;  // of what is called later
};

}  // namespace corvalis::send
