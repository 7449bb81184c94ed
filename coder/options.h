#pragma once

#include <optional>
#include <span>
#include <string>

#include "coder/counts.h"
#include "coder/line.h"
#include "coder/modem.h"

namespace corvalis::coder {

/// The command line of `corvalis-coder`.
struct Options {
  std::string link;          ///< path of the link to the pseudo-terminal; empty: none
  std::string id = "?????";  ///< Coder ID, 1 to 5 characters
  bool open = false;
  Counts counts;
  int baud = 0;       ///< bits per second the Coder answers to; 0: any
  int stop_bits = 0;  ///< 1 or 2, that the Coder answers to; 0: any
  bool pace = false;
  Faults faults;
  std::optional<Modem::Calls> modem;  ///< what becomes of calls; none: no modem in the way
  int dial_ms = 1000;                 ///< milliseconds from a dial command to its outcome
  int replug_after_ms = -1;  ///< milliseconds from unplugging to the new line; negative: never
  bool print = false;
  bool dump = false;
  bool with_stdin = false;
  bool help = false;
};

/// Reads the words behind the program's name into `options`. Returns an empty text, or what is
/// wrong in one sentence for people; `options` is then not to be used.
[[nodiscard]] std::string ParseOptions(std::span<const char* const> words, Options& options);

/// The text of `--help`.
[[nodiscard]] std::string HelpText();

}  // namespace corvalis::coder
