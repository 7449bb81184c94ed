#include <sys/signalfd.h>

#include <csignal>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>

#include "air/judge.h"
#include "coder/facts.h"
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

// What radios will not make of a memory, a line each; 1 if there is anything.
int Judge(const corvalis::coder::Coder& held) {
  const auto facts = corvalis::coder::FactsOf(held);
  const auto findings = corvalis::air::Judge(facts);
  for (const auto& finding : findings) std::cout << Words(finding) << "\n";
  std::cout << Words(corvalis::air::FiguresOf(facts)) << std::endl;
  return findings.empty() ? 0 : 1;
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

  if (options.judge) return Judge(held);

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
