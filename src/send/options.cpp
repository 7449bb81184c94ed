#include "send/options.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "config/conversions.h"
#include "link/autosetting.h"
#include "link/list_commands.h"
#include "send/command.h"
#include "send/words.h"

namespace corvalis::send {

namespace {

constexpr int kFewestPasses = 2;
constexpr int kMostPasses = 10;

struct Option {
  std::string_view name;
  std::string_view value;   // what its value is called; empty: it has none
  std::string_view wanted;  // of its value
  std::string_view help;
  bool (*set)(Options& options, std::string_view value);  // false if the value will not do
};

bool TakeText(std::string_view value, std::string& text) {
  text = value;
  return !value.empty();
}

bool TakeNumber(std::string_view value, int low, int high, std::optional<std::int16_t>& number) {
  number = ParseDecimal<std::int16_t>(value);
  return number && *number >= low && *number <= high;
}

// The last one counts, whichever it is.
bool TakePort(Options& options, std::string_view value) {
  options.device.clear();
  options.port.reset();
  const std::string name = UpperCase(value);
  if (name.find('/') != std::string::npos || !name.starts_with("COM")) {
    return TakeText(value, options.device);
  }
  const std::size_t digit = name.find_first_not_of(' ', 3);
  return digit != std::string::npos &&
         TakeNumber(std::string_view(name).substr(digit), 1, kPorts, options.port);
}

bool TakeId(Options& options, std::string_view value) {
  CarriedText id = Carry(value, kCoderIdCharacters);
  options.id = id.bytes;
  return id.error.empty() && !value.empty();
}

// The loopback alone: a wider net is the administrator's choice, through the service manager.
bool TakeLoopback(Options& options, std::string_view value) {
  const std::size_t colon = value.rfind(':');
  const std::string_view host = value.substr(0, colon);
  if (colon == std::string_view::npos || (host != "127.0.0.1" && host != "localhost")) return false;
  constexpr std::int32_t kLastPort = 65535;
  const auto port = ParseDecimal<std::int32_t>(value.substr(colon + 1));
  if (port && *port >= 1 && *port <= kLastPort) options.listen_port = *port;
  return options.listen_port.has_value();
}

// A command with a text, which is not there yet.
bool TakeFollowAs(Options& options, std::string_view value) {
  options.follow_as = value;
  auto words = SplitWords(value);
  if (!words) return false;
  words->emplace_back("x");
  const Parsed parsed = ParseWords(*words);
  return parsed.command && parsed.command->text == "x";
}

constexpr std::array kOptions = {
    Option{"--file", "STATION.rds", "the path of a station file, which ends in .rds",
           "how the Coder is reached, its ID, and the times of the rows",
           [](Options& o, std::string_view v) {
             return TakeText(v, o.file) && o.file.ends_with(".rds");
           }},
    Option{"--port", "COM1|PATH", "COM1 to COM4 or the path of a device",
           "the line, instead of the file's", TakePort},
    Option{"--id", "ID", "1 to 5 characters", "the Coder ID, instead of the file's", TakeId},
    Option{"--burst", "N", "a number from 2 to 10",
           "passes on a one-way link, instead of the file's",
           [](Options& o, std::string_view v) {
             return TakeNumber(v, kFewestPasses, kMostPasses, o.burst);
           }},
    Option{"--listen", "PATH", "the path of a socket", "be a service on a Unix socket",
           [](Options& o, std::string_view v) { return TakeText(v, o.listen); }},
    Option{"--group", "GROUP", "the name of a group",
           "give the socket and the shared line to a group",
           [](Options& o, std::string_view v) { return TakeText(v, o.group); }},
    Option{"--listen-tcp", "127.0.0.1:PORT", "127.0.0.1:PORT, as it serves this machine alone",
           "be a service on the loopback", TakeLoopback},
    Option{"--share", "PATH", "the path of a link",
           "offer the line to the desktop program as a port",
           [](Options& o, std::string_view v) { return TakeText(v, o.share); }},
    Option{"--allow-raw", "", "", "take frames of clients; they can lock a Coder away",
           [](Options& o, std::string_view) { return o.allow_raw = true; }},
    Option{"--follow", "FILE", "a path", "send the first line of a file whenever it is another",
           [](Options& o, std::string_view v) { return TakeText(v, o.follow); }},
    Option{"--as", "COMMAND", "a command whose text is missing, as \"rt 1\"",
           "the command whose text that line is", TakeFollowAs},
    Option{"--dry-run", "", "", "write no line, print the frames instead",
           [](Options& o, std::string_view) { return o.dry = true; }},
    Option{"--replace", "", "", "write what the line can't carry as its nearest plain letter",
           [](Options& o, std::string_view) { return o.rules.replace = true; }},
    Option{"--cut", "", "", "cut what is too long, at a word",
           [](Options& o, std::string_view) { return o.rules.cut = true; }},
    Option{"--json", "", "", "print an object for each command",
           [](Options& o, std::string_view) { return o.json = true; }},
    Option{"-v", "", "", "tell also what went well",
           [](Options& o, std::string_view) { return o.verbose = true; }},
    Option{"--version", "", "", "print the version",
           [](Options& o, std::string_view) { return o.version = true; }},
    Option{"--help", "", "", "print this list",
           [](Options& o, std::string_view) { return o.help = true; }},
};

}  // namespace

std::string ParseOptions(std::span<const char* const> words, Options& options) {
  std::size_t at = 0;
  for (; at < words.size(); ++at) {
    const std::string_view word = words[at];
    if (word == "-" || !word.starts_with('-')) break;
    const std::string_view name = word.substr(0, word.find('='));
    const auto* const option = std::ranges::find(kOptions, name, &Option::name);
    const bool has_value = name.size() < word.size();
    if (option == kOptions.end()) return "there is no option " + std::string(name);
    if (option->value.empty()) {
      if (has_value) return std::string(name) + " takes no value";
      option->set(options, {});
      continue;
    }
    if (!has_value && ++at == words.size()) return std::string(name) + " needs a value";
    const std::string_view value = has_value ? word.substr(name.size() + 1) : words[at];
    if (!option->set(options, value)) {
      return std::string(name) + " is followed by " + std::string(option->wanted) + ", not by \"" +
             std::string(value) + "\"";
    }
  }
  options.command.assign(words.begin() + static_cast<std::ptrdiff_t>(at), words.end());
  if (options.help || options.version) return {};
  if (options.follow.empty() != options.follow_as.empty()) return "--follow and --as go together";
  if (!options.share.empty() && (!options.Serves() || options.dry)) {
    return "--share goes with a service that writes to the line";
  }
  if (options.Serves() != options.command.empty()) {
    return options.Serves() ? "a service takes no command" : "the command is missing";
  }
  return {};
}

bool Options::Serves() const {
  // What the service manager hands over counts as well.
  return !listen.empty() || listen_port || !follow.empty() || std::getenv("LISTEN_FDS") != nullptr;
}

std::string HelpText() {
  std::string text =
      "usage: corvalis-send [option ...] command\n"
      "       corvalis-send [option ...] -\n"
      "       corvalis-send [option ...] --listen PATH | --listen-tcp 127.0.0.1:PORT | --follow "
      "FILE\n"
      "\n"
      "Sends single items to the Coder while nobody sits at the program; with -, a command from\n"
      "each line of the standard input. Rows, lists and pages count from 0, as on the screens.\n"
      "\n";
  for (const Option& option : kOptions) {
    std::string name = "  " + std::string(option.name);
    if (!option.value.empty()) name += " " + std::string(option.value);
    constexpr std::size_t kColumn = 22;
    text += Padded(name, std::max(kColumn, name.size() + 1)) + std::string(option.help) + "\n";
  }
  return text + "\ncommands:\n" + CommandsInWords() +
         "  read ITEM | read all\n"
         "\n"
         "Before or behind a text may stand --time N, --replace and --cut. RT=, TEXT=, PS=, TA=,\n"
         "TP=, PTY= and MS= are taken as play-out systems write them.\n"
         "\n"
         "exit codes: 0 acknowledged, 1 refused or the link failed, 2 bad use, 3 no line\n";
}

}  // namespace corvalis::send
