#include "send/service.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "config/config_data.h"
#include "link/serial_management.h"
#include "platform/platform.h"
#include "send/desktop_port.h"
#include "send/dispatcher.h"
#include "send/follower.h"
#include "send/socket_server.h"
#include "send/systemd.h"
#include "send/words.h"

namespace corvalis::send {

namespace {

// Until what is under way at the end is broken off, a TA too.
constexpr std::chrono::milliseconds kLastTry{500};

void Tell(const std::string& words) { std::cerr << "corvalis-send: " << words << std::endl; }

// The signals that end the service, taken in turn with all else.
class EndSignals {
 public:
  EndSignals() {
    sigset_t taken;
    sigemptyset(&taken);
    for (const int signal : {SIGTERM, SIGINT}) sigaddset(&taken, signal);
    sigprocmask(SIG_BLOCK, &taken, nullptr);
    descriptor_ = signalfd(-1, &taken, SFD_CLOEXEC | SFD_NONBLOCK);
  }
  ~EndSignals() { close(descriptor_); }
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  [[nodiscard]] int Descriptor() const { return descriptor_; }
  void Take() const {
    signalfd_siginfo info{};
    static_cast<void>(read(descriptor_, &info, sizeof info));
  }

 private:
  int descriptor_ = -1;
};

// Opens what is to be listened to; a sentence if something can't be.
std::string OpenSockets(const Options& options, SocketServer& server) {
  for (const int handed : SocketsOfServiceManager()) server.Listen(ListeningSocket(handed));
  std::string error;
  if (!options.listen.empty()) {
    ListeningSocket socket = ListeningSocket::AtPath(options.listen, options.group, error);
    if (!error.empty()) return error;
    server.Listen(std::move(socket));
  }
  if (options.listen_port) {
    ListeningSocket socket = ListeningSocket::OnLoopback(*options.listen_port, error);
    if (!error.empty()) return error;
    server.Listen(std::move(socket));
  }
  return {};
}

// Why the line can't be shared with the desktop; empty if it can.
std::string NotShareable(const Options& options) {
  namespace fs = std::filesystem;
  if (configData->Modem()) return "--share is not for a station behind a modem";
  if (configData->Satellite()) {
    return "--share needs a Coder that answers; over a one-way link nothing tells when the other "
           "program has written all";
  }
  const auto normal = [](const fs::path& path) {
    std::error_code error;
    const fs::path whole = fs::absolute(path, error);
    return fs::weakly_canonical(whole.parent_path(), error) / whole.filename();
  };
  const fs::path own = options.device.empty() ? fs::path(Machine().settings_folder) /
                                                    ("com" + std::to_string(configData->CommPort()))
                                              : fs::path(options.device);
  if (normal(own) != normal(options.share)) return {};
  return options.share + " is the line of this service; --port gives it the device itself";
}

}  // namespace

int RunService(const Options& options, Station& station, LineOwner& line, Sender& sender,
               SharedLine* shared) {
  const EndSignals end_signals;
  Dispatcher dispatcher(station, line, sender);
  dispatcher.Note = Tell;
  SocketServer server(dispatcher,
                      {.rules = options.rules, .json = options.json, .raw = options.allow_raw});
  std::string error = shared == nullptr ? "" : NotShareable(options);
  std::optional<DesktopPort> desktop;
  try {
    if (error.empty()) error = OpenSockets(options, server);
    if (error.empty() && shared != nullptr) desktop.emplace(*shared, options.share, options.group);
  } catch (const std::runtime_error& refused) {
    error = refused.what();
  }
  if (!error.empty()) {
    Tell(error);
    return ExitCode(Outcome::Kind::kUnfit);
  }
  QSocketNotifier ends(end_signals.Descriptor(), QSocketNotifier::Read);
  QTimer last_try;
  last_try.setSingleShot(true);
  last_try.callOnTimeout([] { EscPressed = true; });
  QObject::connect(&ends, &QSocketNotifier::activated, &ends, [&] {
    end_signals.Take();
    dispatcher.Stop();
    last_try.start(kLastTry);
  });
  std::optional<Follower> follower;
  if (!options.follow.empty()) {
    follower.emplace(dispatcher, options.follow, *SplitWords(options.follow_as), options.rules,
                     Tell);
  }
  TellServiceManager("READY=1");
  dispatcher.Begin();
  while (!dispatcher.Stopping()) {
    const double due = dispatcher.Work();
    if (!dispatcher.Stopping()) Machine().pump->RunUntil(due);
  }
  TellServiceManager("STOPPING=1");
  dispatcher.Work();
  EscPressed = true;  // the desktop's exchange isn't waited for
  return 0;
}

}  // namespace corvalis::send
