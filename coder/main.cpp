#include <sys/signalfd.h>

#include <csignal>
#include <exception>
#include <iostream>

#include "coder/options.h"
#include "coder/server.h"

int main(int argc, char** argv) {
  namespace coder = corvalis::coder;

  coder::Options options;
  const std::string wrong =
      coder::ParseOptions({argv + 1, static_cast<std::size_t>(argc - 1)}, options);
  if (!wrong.empty()) {
    std::cerr << "corvalis-coder: " << wrong << "; see --help\n";
    return 2;
  }
  if (options.help) {
    std::cout << coder::HelpText();
    return 0;
  }

  // Signals are taken in turn with the line's bytes; a reader of the output that goes away is no
  // reason to leave the link behind.
  sigset_t taken;
  sigemptyset(&taken);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGUSR1}) sigaddset(&taken, signal);
  sigprocmask(SIG_BLOCK, &taken, nullptr);
  std::signal(SIGPIPE, SIG_IGN);

  try {
    coder::Server(options).Run(signalfd(-1, &taken, SFD_CLOEXEC));
  } catch (const std::exception& error) {
    std::cerr << "corvalis-coder: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
