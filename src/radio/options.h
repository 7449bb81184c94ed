#pragma once

#include <optional>
#include <span>
#include <string>

namespace corvalis::radio {

/// The command line of `corvalis-radio`.
struct Options {
  std::string compare;         ///< path of the station file to compare with; empty: none
  std::string judge;           ///< path of the station file to judge; empty: none
  std::string source;          ///< path of the groups, "-" for the standard input; empty: none
  std::optional<double> wait;  ///< seconds after which a report ends at the latest
  bool report = false;
  bool help = false;
};

/// Reads the words behind the program's name into `options`. Returns an empty text, or what is
/// wrong in one sentence for people; `options` is then not to be used.
[[nodiscard]] std::string ParseOptions(std::span<const char* const> words, Options& options);

/// The text of `--help`.
[[nodiscard]] std::string HelpText();

}  // namespace corvalis::radio
