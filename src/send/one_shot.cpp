#include "send/one_shot.h"

#include <istream>
#include <ostream>
#include <utility>

#include "send/answers.h"

namespace corvalis::send {

int OneShot::RunWords(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
  // What a play-out system writes has no quotes for a shell to take away.
  if (Parsed terse = ParseLine(line, rules_); terse.terse) return Run(terse, line, 0);
  return Run(ParseWords(words, rules_), line, 0);
}

int OneShot::RunLines(std::istream& in) {
  int code = 0;
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    const Parsed parsed = ParseLine(line, rules_);
    if (!parsed.command && parsed.error.empty()) continue;
    const int failed = Run(parsed, line, number);
    if (code == 0) code = failed;
  }
  return code;
}

int OneShot::Run(const Parsed& parsed, std::string_view line, int number) {
  const Outcome outcome = parsed.command
                              ? sender_.Send(*parsed.command)
                              : Outcome{.kind = Outcome::Kind::kUnfit, .words = parsed.error};
  Tell(parsed.command ? parsed.command->line : line, number, parsed.terse, outcome);
  return ExitCode(outcome.kind);
}

void OneShot::Tell(std::string_view line, int number, bool terse, const Outcome& outcome) {
  const bool done = outcome.kind == Outcome::Kind::kDone;
  if (!done) {
    err_ << "corvalis-send: ";
    if (number > 0) err_ << "line " << number << ": ";
    err_ << outcome.words << std::endl;
  }
  if (telling_.json) {
    Outcome told = outcome;
    if (telling_.frames != nullptr) {
      told.values.emplace_back("frames", std::exchange(*telling_.frames, {}));
    }
    out_ << AsJson(line, number, told) << std::endl;
  } else if (!outcome.read.empty()) {
    out_ << outcome.read << std::endl;
  } else if (terse) {
    out_ << (done ? "OK" : "NO") << std::endl;
  } else if (done && telling_.verbose) {
    out_ << "ok: " << line << std::endl;
  }
}

}  // namespace corvalis::send
