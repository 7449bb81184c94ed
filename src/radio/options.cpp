#include "radio/options.h"

#include <string_view>

#include "config/conversions.h"

namespace corvalis::radio {

namespace {

// The word behind an option; sets `wrong` if there is none.
std::string ValueOf(std::span<const char* const> words, std::size_t& at, std::string_view wanted,
                    std::string& wrong) {
  const std::string name = words[at];
  if (at + 1 == words.size() || *words[at + 1] == '\0') {
    wrong = name + " wants " + std::string(wanted);
    return {};
  }
  return words[++at];
}

void TakeSource(const std::string& word, Options& options, std::string& wrong) {
  if (word.size() > 1 && word.front() == '-') {
    wrong = "unknown option " + word;
  } else if (word.empty()) {
    wrong = "the source has no name";
  } else if (!options.source.empty()) {
    wrong = "there is one source, not \"" + options.source + "\" and \"" + word + "\"";
  } else {
    options.source = word;
  }
}

void TakeWait(const std::string& word, Options& options, std::string& wrong) {
  options.wait = ParseNumber(word);
  if (!options.wait || *options.wait < 0) {
    wrong = "--wait wants a number of seconds, not \"" + word + "\"";
  }
}

}  // namespace

std::string ParseOptions(std::span<const char* const> words, Options& options) {
  std::string wrong;
  for (std::size_t at = 0; at < words.size() && wrong.empty(); ++at) {
    const std::string word = words[at];
    if (word == "--compare") {
      options.compare = ValueOf(words, at, "a station file", wrong);
    } else if (word == "--judge") {
      options.judge = ValueOf(words, at, "a station file", wrong);
    } else if (word == "--wait") {
      const std::string value = ValueOf(words, at, "a number of seconds", wrong);
      if (wrong.empty()) TakeWait(value, options, wrong);
    } else if (word == "--report") {
      options.report = true;
    } else if (word == "--help") {
      options.help = true;
    } else {
      TakeSource(word, options, wrong);
    }
  }
  if (!wrong.empty() || options.help) return wrong;
  if (options.wait && !options.report) return "--wait wants --report";
  const bool listens = options.report || !options.compare.empty() || !options.source.empty();
  if (!options.judge.empty() && listens) return "--judge stands alone, as it listens to nothing";
  return {};
}

std::string HelpText() {
  return "usage: corvalis-radio [--compare STATION.rds] [--report] [--wait SECONDS] [SOURCE]\n"
         "       corvalis-radio --judge STATION.rds\n\n"
         "Shows what a radio makes of a station, and holds it against a station file.\n\n"
         "  SOURCE                 a file, a FIFO or \"-\" (the standard input) of groups in\n"
         "                         hexadecimal digits, a line each, read as they come\n"
         "  --compare STATION.rds  compare with a station file, which is only read\n"
         "  --report               print what was heard, or the comparison, when the source has\n"
         "                         ended, without a window; without SOURCE of the standard input\n"
         "  --wait SECONDS         end the report after so many seconds at the latest\n"
         "  --judge STATION.rds    print what radios will not make of a station file\n"
         "  --help                 print this\n\n"
         "A report ends with 0 if all that was heard agrees and everything prepared was heard, "
         "with\n"
         "1 if something differs, with 2 if something was not heard. --judge ends with 0 if it "
         "has\n"
         "nothing to say, else with 1. Bad use ends with 3.\n";
}

}  // namespace corvalis::radio
