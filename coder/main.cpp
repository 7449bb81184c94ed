#include <sys/signalfd.h>

#include <csignal>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>

#include "coder/memory_text.h"
#include "coder/options.h"
#include "coder/outlet.h"
#include "coder/server.h"

namespace {

// An empty text, or why the memory in a file cannot be taken.
std::string ReadMemoryFile(const std::string& path, corvalis::coder::Coder& coder) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  // A folder opens, and fails when it is read.
  if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(text << file.rdbuf())) ||
      file.bad()) {
    return "cannot be read";
  }
  return corvalis::coder::ReadMemory(text.str(), coder);
}

}  // namespace

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

  coder::Coder held(options.id, options.open, options.counts);
  if (!options.memory.empty()) {
    const std::string lost = ReadMemoryFile(options.memory, held);
    if (!lost.empty()) {
      std::cerr << "corvalis-coder: " << options.memory << ": " << lost << "\n";
      return 2;
    }
  }

  // Signals are taken in turn with the line's bytes; a reader of the output that goes away is no
  // reason to leave the link behind.
  sigset_t taken;
  sigemptyset(&taken);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGUSR1}) sigaddset(&taken, signal);
  sigprocmask(SIG_BLOCK, &taken, nullptr);
  std::signal(SIGPIPE, SIG_IGN);

  try {
    coder::Server(options, std::move(held)).Run(signalfd(-1, &taken, SFD_CLOEXEC));
  } catch (const coder::CannotWrite& error) {
    std::cerr << "corvalis-coder: " << error.what() << "\n";
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "corvalis-coder: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
