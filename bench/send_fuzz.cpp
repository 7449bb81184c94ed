// Two million lines for what reads the lines of corvalis-send: pieces of good lines, put together,
// cut and spoilt. Built under the sanitizers it ends with 0 if nothing was found:
//
//     cmake --build build/sanitize --target send_fuzz && build/sanitize/bench/send_fuzz

#include <array>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "send/command.h"
#include "send/words.h"

namespace {

constexpr std::array kPieces = {
    "rt ",
    "1 ",
    "\"Now: x\"",
    " --time ",
    "15",
    "ps ",
    "ps-page 2 3 ",
    "page ",
    "ta on",
    "tp off",
    "pty ",
    "10",
    "ms ",
    "music",
    "ptyn 10 ",
    "ct now",
    "eon-ta 2 ",
    "tmc 3 ",
    "65535 ",
    "2047 ",
    "raw ",
    "0F0031",
    "read ",
    "all",
    "send ",
    "psn,rt,",
    "RT=",
    "PS=",
    "TA=1",
    "PTY=",
    "TEXT=",
    "MS=",
    "'",
    "\"",
    "\\",
    "#",
    " ",
    "\t",
    ",",
    "=",
    "--cut",
    "--replace",
    "-1",
    "99999999999",
    "\xC3\xA9",
    "\xC5\x81",
    "\xF0\x9F\x8E\xB5",
    "\xE9",
    "\xED\xA0\x80",
    "e\xCC\x81",
    "Pop Music",
    "Alarm! ",
};

// What is true of every line, whatever it is.
bool Holds(const corvalis::send::Parsed& parsed, corvalis::send::TextRules rules) {
  if (!parsed.command) return true;
  const corvalis::send::Command& command = *parsed.command;
  if (!parsed.error.empty() || command.text.size() > 64 || command.number < 0 ||
      command.number > 255 || command.page > 15 || command.value > 31) {
    return false;
  }
  // Its own line gives the same command again.
  const auto again = corvalis::send::ParseLine(command.line, rules);
  const bool cut = command.line.find("--") != std::string::npos;
  return cut || (again.command && again.command->Key() == command.Key() &&
                 again.command->text == command.text);
}

}  // namespace

int main() {
  constexpr int kLines = 2'000'000;
  constexpr int kMostPieces = 9;
  std::mt19937 random(20);
  const auto below = [&](std::size_t count) { return random() % count; };
  int good = 0;
  for (int i = 0; i < kLines; ++i) {
    std::string line;
    for (std::size_t piece = below(kMostPieces); piece > 0; --piece) {
      line += kPieces.at(below(kPieces.size()));
    }
    if (!line.empty() && below(3) == 0) line[below(line.size())] = static_cast<char>(below(256));
    if (below(50) == 0) line.resize(below(5000), static_cast<char>(below(256)));
    const corvalis::send::TextRules rules{.replace = below(2) == 0, .cut = below(2) == 0};
    const auto parsed = corvalis::send::ParseLine(line, rules);
    good += parsed.command ? 1 : 0;
    if (!Holds(parsed, rules)) {
      std::cout << "line " << i << ": " << corvalis::send::Quoted(line) << "\n";
      return EXIT_FAILURE;
    }
  }
  std::cout << kLines << " lines, " << good << " of them commands\n";
  return EXIT_SUCCESS;
}
