#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "send/carried_text.h"

namespace corvalis::send {

/// The command line of `corvalis-send`.
struct Options {
  std::string file = {};                   ///< the station file; empty: the program's own
  std::optional<std::int16_t> port = {};   ///< 1 to 4
  std::string device = {};                 ///< path of the line; empty: as the port says
  std::optional<std::string> id = {};      ///< the Coder ID, as the line carries it
  std::optional<std::int16_t> burst = {};  ///< 2 to 10
  TextRules rules;
  std::string listen = {};              ///< path of a Unix socket; empty: none
  std::string group = {};               ///< of that socket; empty: the user's own
  std::optional<int> listen_port = {};  ///< of the loopback, 1 to 65535
  std::string share = {};               ///< path of the desktop's port; empty: none
  bool allow_raw = false;               ///< from clients
  std::string follow = {};              ///< path of a file; empty: none
  std::string follow_as = {};           ///< the command whose text its line is
  bool dry = false;
  bool json = false;
  bool verbose = false;
  bool help = false;
  bool version = false;
  std::vector<std::string> command = {};  ///< the words behind the options

  /// True for a service, which takes no command.
  [[nodiscard]] bool Serves() const;
};

/// Reads the words behind the program's name into `options`. Returns an empty text, or what is
/// wrong in one sentence for people; `options` is then not to be used.
[[nodiscard]] std::string ParseOptions(std::span<const char* const> words, Options& options);

/// The text of `--help`.
[[nodiscard]] std::string HelpText();

}  // namespace corvalis::send
