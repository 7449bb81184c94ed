#include "coder/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string_view>

namespace corvalis::coder {

namespace {

constexpr std::size_t kLongestId = 5;
constexpr int kMost = std::numeric_limits<int>::max();

// Sets what an option says; returns false if its value will not do.
using Setter = bool (*)(Options&, std::string_view value);

struct Option {
  std::string_view name;
  std::string_view value;  // what its value is called; empty: it has none
  std::string_view wanted;
  std::string_view help;
  Setter set;
};

bool ParseNumber(std::string_view text, int low, int high, int& number) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return false;
  if (value < low || value > high) return false;
  number = value;
  return true;
}

struct CallsName {
  std::string_view name;
  Modem::Calls calls;
};
constexpr std::array kCalls = {
    CallsName{"answer", Modem::Calls::kAnswered},
    CallsName{"busy", Modem::Calls::kBusy},
    CallsName{"refuse", Modem::Calls::kRefused},
    CallsName{"silent", Modem::Calls::kSilent},
};

bool ParseCalls(std::string_view text, std::optional<Modem::Calls>& calls) {
  const auto* const found = std::ranges::find(kCalls, text, &CallsName::name);
  if (found == kCalls.end()) return false;
  calls = found->calls;
  return true;
}

bool On(bool& flag) { return flag = true; }

constexpr std::string_view kPositive = "a number from 1";
constexpr std::string_view kMilliseconds = "a number of milliseconds from 0";

const std::array kOptions = {
    Option{"--link", "PATH", "a path", "make PATH a link to the line, for as long as it is there",
           [](Options& o, std::string_view v) {
             o.link = v;
             return !v.empty();
           }},
    Option{"--id", "ID", "1 to 5 characters", "the Coder ID (\"?????\" if not given)",
           [](Options& o, std::string_view v) {
             o.id = v;
             return !v.empty() && v.size() <= kLongestId;
           }},
    Option{"--open", "", "", "take commands without having been addressed",
           [](Options& o, std::string_view) { return On(o.open); }},
    Option{"--baud", "N", kPositive, "understand bytes at N bits per second only",
           [](Options& o, std::string_view v) { return ParseNumber(v, 1, kMost, o.baud); }},
    Option{"--stop-bits", "N", "1 or 2", "understand bytes with N stop bits only",
           [](Options& o, std::string_view v) { return ParseNumber(v, 1, 2, o.stop_bits); }},
    Option{"--pace", "", "", "take and answer bytes at the speed the line is set to",
           [](Options& o, std::string_view) { return On(o.pace); }},
    Option{"--silent", "", "", "answer nothing",
           [](Options& o, std::string_view) { return On(o.faults.silent); }},
    Option{
        "--late", "MS", kMilliseconds, "answer MS milliseconds late",
        [](Options& o, std::string_view v) { return ParseNumber(v, 0, kMost, o.faults.late_ms); }},
    Option{"--garble", "N", kPositive, "falsify a byte of every Nth answer",
           [](Options& o, std::string_view v) {
             return ParseNumber(v, 1, kMost, o.faults.garble_every);
           }},
    Option{"--cut", "N", kPositive, "stop each answer after N bytes",
           [](Options& o, std::string_view v) {
             return ParseNumber(v, 1, kMost, o.faults.cut_after);
           }},
    Option{"--unplug-after", "N", kPositive, "remove the line with the Nth frame, unanswered",
           [](Options& o, std::string_view v) {
             return ParseNumber(v, 1, kMost, o.faults.unplug_after);
           }},
    Option{
        "--replug-after", "MS", kMilliseconds, "bring a new line MS milliseconds after that",
        [](Options& o, std::string_view v) { return ParseNumber(v, 0, kMost, o.replug_after_ms); }},
    Option{"--modem", "CALLS", "answer, busy, refuse or silent",
           "sit behind an AT modem: answer, busy, refuse or silent",
           [](Options& o, std::string_view v) { return ParseCalls(v, o.modem); }},
    Option{"--dial-ms", "MS", kMilliseconds, "dial for MS milliseconds (1000 if not given)",
           [](Options& o, std::string_view v) { return ParseNumber(v, 0, kMost, o.dial_ms); }},
    Option{"--print", "", "", "print each frame, and what the modem does, in words",
           [](Options& o, std::string_view) { return On(o.print); }},
    Option{"--dump", "", "", "print the memory on SIGUSR1 and at the end",
           [](Options& o, std::string_view) { return On(o.dump); }},
    Option{"--with-stdin", "", "", "end when the standard input is closed",
           [](Options& o, std::string_view) { return On(o.with_stdin); }},
    Option{"--help", "", "", "print this", [](Options& o, std::string_view) { return On(o.help); }},
};

}  // namespace

std::string ParseOptions(std::span<const char* const> words, Options& options) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string name = words[i];
    const auto* const found = std::ranges::find(kOptions, name, &Option::name);
    if (found == kOptions.end()) return "unknown option " + name;
    std::string_view value;
    if (!found->value.empty()) {
      if (i + 1 == words.size()) return name + " wants " + std::string(found->wanted);
      value = words[++i];
    }
    if (!found->set(options, value)) {
      return name + " wants " + std::string(found->wanted) + ", not \"" + std::string(value) + "\"";
    }
  }
  return {};
}

std::string HelpText() {
  constexpr std::size_t kColumn = 22;
  std::string text =
      "usage: corvalis-coder [option ...]\n\n"
      "Offers a simulated RDS encoder on a pseudo-terminal until it is interrupted.\n\n";
  for (const Option& option : kOptions) {
    std::string line = "  " + std::string(option.name) + " " + std::string(option.value);
    line.resize(std::max(line.size() + 1, kColumn), ' ');
    text += line + std::string(option.help) + "\n";
  }
  return text +
         "\nThe first line printed is \"ready\" and the terminal's path, also after each new "
         "plugging;\n\"unplugged\" stands for its removal. The memory is printed between the lines "
         "\"memory\"\nand \"end of memory\": the Coder ID and each item's name, index in two "
         "hexadecimal digits,\nbytes of the body in hexadecimal, what they say, and the body as a "
         "text:\n\n"
         "  ID \"?????\" addressed\n"
         "  PI 00: 35 32 30 31 (country 5, coverage 2, programme 01)  \"5201\"\n\n"
         "Behind a modem the Coder has to be dialled (ATDT, ATDP). A call is answered, finds the "
         "number\nbusy or is refused; a silent modem has no power and says nothing to anything. "
         "The "
         "modem is\nset up with a guard time of 0: \"+++\" needs no silence before it. The call "
         "stays "
         "up when the\nport is closed.\n\n"
         "A pseudo-terminal knows speed and stop bits and has no parity.\n";
}

}  // namespace corvalis::coder
