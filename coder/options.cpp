#include "coder/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string_view>
#include <utility>

namespace corvalis::coder {

namespace {

constexpr std::size_t kLongestId = 5;
constexpr int kMost = std::numeric_limits<int>::max();

// Sets what an option says; returns false if its value will not do.
using Setter = bool (*)(Options&, std::string_view value);

struct Option {
  std::string_view name;
  std::string_view value;  // what its value is called; empty: it has none
  std::string wanted;
  std::string help;
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

// "psn=50,page=10": any of the counts, each once. `counts` may be changed in part on failure.
bool ParseCounts(std::string_view text, Counts& counts) {
  std::array<bool, kCountNames.size()> given{};
  for (bool more = true; more;) {
    const std::size_t comma = std::min(text.find(','), text.size());
    const std::string_view entry = text.substr(0, comma);
    const std::size_t equals = std::min(entry.find('='), entry.size());
    const auto* const found =
        std::ranges::find(kCountNames, entry.substr(0, equals), &CountName::name);
    if (found == kCountNames.end() || equals == entry.size()) return false;
    bool& twice = given[static_cast<std::size_t>(found - kCountNames.begin())];
    if (twice) return false;
    twice = true;
    if (!ParseNumber(entry.substr(equals + 1), 0, found->most, counts.*found->count)) return false;
    more = comma < text.size();
    text.remove_prefix(std::min(comma + 1, text.size()));
  }
  return true;
}

bool ParsePath(std::string_view text, std::string& path) {
  path = text;
  return !text.empty();
}

bool On(bool& flag) { return flag = true; }

// "psn=50,page=10 ..." of what `number` gives for each count.
template <typename Number>
std::string CountList(Number number) {
  std::string text;
  for (const CountName& count : kCountNames) {
    text +=
        (text.empty() ? "" : ",") + std::string(count.name) + "=" + std::to_string(number(count));
  }
  return text;
}

const std::string kMostCounts = CountList([](const CountName& count) { return count.most; });
const std::string kUsualCounts =
    CountList([](const CountName& count) { return Counts{}.*count.count; });

const std::string kPositive = "a number from 1";
const std::string kMilliseconds = "a number of milliseconds from 0";

const std::array kOptions = {
    Option{"--link", "PATH", "a path", "make PATH a link to the line, for as long as it is there",
           [](Options& o, std::string_view v) { return ParsePath(v, o.link); }},
    Option{"--id", "ID", "1 to 5 characters", "the Coder ID (\"?????\" if not given)",
           [](Options& o, std::string_view v) {
             o.id = v;
             return !v.empty() && v.size() <= kLongestId;
           }},
    Option{"--open", "", "", "take commands without having been addressed",
           [](Options& o, std::string_view) { return On(o.open); }},
    Option{"--count", "LIST",
           "counts such as psn=50,page=10, none twice and none above " + kMostCounts,
           "how many items it holds (see below)",
           [](Options& o, std::string_view v) { return ParseCounts(v, o.counts); }},
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
    Option{"--air", "PATH", "a path", "write each group on the air as hexadecimal text (see below)",
           [](Options& o, std::string_view v) { return ParsePath(v, o.air.text); }},
    Option{"--bits", "PATH", "a path", "write the same as bits",
           [](Options& o, std::string_view v) { return ParsePath(v, o.air.bits); }},
    Option{"--mpx", "PATH", "a path", "write the same as the multiplex signal",
           [](Options& o, std::string_view v) { return ParsePath(v, o.air.mpx); }},
    Option{"--air-speed", "N", "a whole number from 0",
           "be N times as fast as the air; 0: as fast as it can be",
           [](Options& o, std::string_view v) { return ParseNumber(v, 0, kMost, o.air.speed); }},
    Option{"--air-groups", "N", kPositive, "end after N groups",
           [](Options& o, std::string_view v) { return ParseNumber(v, 1, kMost, o.air.groups); }},
    Option{"--memory", "PATH", "a path", "begin with the memory that --dump printed to PATH",
           [](Options& o, std::string_view v) { return ParsePath(v, o.memory); }},
    Option{"--judge", "", "", "tell what radios will not make of that memory, and end",
           [](Options& o, std::string_view) { return On(o.judge); }},
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
      if (i + 1 == words.size()) return name + " wants " + found->wanted;
      value = words[++i];
    }
    if (!found->set(options, value)) {
      return name + " wants " + found->wanted + ", not \"" + std::string(value) + "\"";
    }
  }
  if (options.air.speed == 0 && options.air.groups == 0) return "--air-speed 0 wants --air-groups";
  if (options.judge && options.memory.empty()) return "--judge wants --memory";
  const AirOptions& air = options.air;
  for (const auto& [one, other] :
       {std::pair{&air.text, &air.bits}, {&air.text, &air.mpx}, {&air.bits, &air.mpx}}) {
    if (!one->empty() && *one == *other) {
      return "of --air, --bits and --mpx each wants a path of its own, not \"" + *one + "\" twice";
    }
  }
  return {};
}

bool AirOptions::Wanted() const {
  return !text.empty() || !bits.empty() || !mpx.empty() || groups > 0;
}

bool AirOptions::ToStandardOutput() const { return text == "-" || bits == "-" || mpx == "-"; }

std::string HelpText() {
  constexpr std::size_t kColumn = 22;
  std::string text =
      "usage: corvalis-coder [option ...]\n\n"
      "Offers a simulated RDS encoder on a pseudo-terminal until it is interrupted.\n\n";
  for (const Option& option : kOptions) {
    std::string line = "  " + std::string(option.name) + " " + std::string(option.value);
    line.resize(std::max(line.size() + 1, kColumn), ' ');
    text += line + option.help + "\n";
  }
  return text + "\nOf each list it holds, unless --count says otherwise:\n\n  " + kUsualCounts +
         "\n\nThe first line printed is \"ready\" and the terminal's path, also after each new "
         "plugging;\n\"unplugged\" stands for its removal. The memory is printed between the lines "
         "\"memory\"\nand \"end of memory\": the Coder ID, and name, place in hexadecimal digits, "
         "bytes of the\nbody, what they say and the body as a text of each single value, and of "
         "each "
         "item of a list\nthat has been written:\n\n"
         "  ID \"?????\" addressed\n"
         "  PI 00: 35 32 30 31 (country 5, coverage 2, programme 01)  \"5201\"\n\n"
         "Behind a modem the Coder has to be dialled (ATDT, ATDP). A call is answered, finds the "
         "number\nbusy or is refused; a silent modem has no power and says nothing to anything. "
         "The "
         "modem is\nset up with a guard time of 0: \"+++\" needs no silence before it. The call "
         "stays "
         "up when the\nport is closed.\n\n"
         "On the air, a file is emptied, a FIFO may get a reader at any time, and \"-\" is the "
         "standard\noutput; words then go to the standard error. A reader that is slow or goes "
         "away "
         "never holds up\nthe line: groups are dropped, and the standard error tells it. The "
         "multiplex signal is 16 bits\nsigned, little-endian, one channel, 192000 samples a "
         "second, "
         "for a player at 192 kHz; a PATH\nthat ends in \".wav\" gets a header. Of --air, --bits "
         "and "
         "--mpx any or all may be given.\n\n"
         "A pseudo-terminal knows speed and stop bits and has no parity.\n";
}

}  // namespace corvalis::coder
