#pragma once

#include <optional>
#include <span>
#include <string>

#include "coder/counts.h"
#include "coder/line.h"
#include "coder/modem.h"

namespace corvalis::coder {

/// Where the air goes, and how fast.
struct AirOptions {
  std::string text =
      {};  ///< path for the groups as hexadecimal text; empty: none, "-": standard output
  std::string bits = {};  ///< the same as bits
  std::string mpx = {};   ///< the same as the multiplex signal
  int speed = 1;          ///< times as fast as the air; 0: as fast as it can
  int groups = 0;         ///< end after so many; 0: never

  /// True if anything goes on the air at all.
  [[nodiscard]] bool Wanted() const;
  /// True if the standard output is taken, so that words have to go elsewhere.
  [[nodiscard]] bool ToStandardOutput() const;
};

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
  AirOptions air;
  std::string memory;  ///< path of a memory to begin with; empty: as it left the factory
  bool judge = false;  ///< say what radios will not make of that memory, and nothing else
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
