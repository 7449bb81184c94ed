#include <QCoreApplication>
#include <csignal>
#include <iostream>

#include "send/program.h"

int main(int argc, char** argv) {
  namespace send = corvalis::send;

  const QCoreApplication application(argc, argv);
  std::signal(SIGPIPE, SIG_IGN);
  send::Options options;
  const std::string wrong =
      send::ParseOptions({argv + 1, static_cast<std::size_t>(argc - 1)}, options);
  if (!wrong.empty()) {
    std::cerr << "corvalis-send: " << wrong << "; see --help\n";
    return ExitCode(send::Outcome::Kind::kUnfit);
  }
  if (options.help) {
    std::cout << send::HelpText();
    return 0;
  }
  if (options.version) {
    std::cout << "corvalis-send " CORVALIS_VERSION "\n";
    return 0;
  }
  return send::RunProgram(options);
}
