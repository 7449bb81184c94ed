#include "radio/program.h"

#include <poll.h>

#include <algorithm>
#include <csignal>
#include <limits>
#include <ostream>

#include "air/judge.h"
#include "platform/platform.h"
#include "radio/comparison.h"
#include "radio/facts.h"
#include "radio/prepared.h"
#include "radio/report.h"
#include "radio/tuner.h"

namespace corvalis::radio {

namespace {

constexpr const char* kProgram = "corvalis-radio: ";

// While it lives, the signals that would end the program are only noted.
class Interruption {
 public:
  Interruption() {
    came_ = 0;
    struct sigaction note {};
    note.sa_handler = [](int /*signal*/) { came_ = 1; };
    ::sigaction(SIGINT, &note, &interrupt_);
    ::sigaction(SIGTERM, &note, &terminate_);
  }
  ~Interruption() {
    ::sigaction(SIGINT, &interrupt_, nullptr);
    ::sigaction(SIGTERM, &terminate_, nullptr);
  }
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  [[nodiscard]] static bool Came() { return came_ != 0; }

 private:
  static inline volatile std::sig_atomic_t came_ = 0;
  struct sigaction interrupt_ {};
  struct sigaction terminate_ {};
};

// Waits until there is something to read, or some of `seconds` have passed.
void WaitFor(int descriptor, double seconds) {
  constexpr double kLookUp = 0.25;  // for an interruption
  pollfd asked{.fd = descriptor, .events = POLLIN, .revents = 0};
  const double slice = std::clamp(seconds, 0.0, kLookUp);
  ::poll(&asked, 1, static_cast<int>(slice * 1000) + 1);
}

void ListenToTheEnd(Tuner& tuner, double seconds) {
  const Interruption interruption;
  const Clock& clock = *Machine().clock;
  const double end = clock.Steady() + seconds;
  using State = GroupSource::State;
  while (!Interruption::Came()) {
    const bool more = tuner.Listen(clock.Steady());
    const State state = tuner.Source().Now();
    if (!more && (state == State::kEnded || state == State::kFailed)) return;
    const double left = end - clock.Steady();
    if (left <= 0) return;
    if (!more) WaitFor(tuner.Source().Descriptor(), left);
  }
}

}  // namespace

int RunReport(const Options& options, std::ostream& out, std::ostream& complaints) {
  Prepared prepared;
  if (!options.compare.empty()) {
    const std::string wrong = ReadPrepared(options.compare, prepared);
    if (!wrong.empty()) {
      complaints << kProgram << wrong << "\n";
      return kBadUse;
    }
  }
  Tuner tuner;
  if (const std::string wrong = tuner.Open(options.source.empty() ? "-" : options.source);
      !wrong.empty()) {
    complaints << kProgram << wrong << "\n";
    return kBadUse;
  }
  ListenToTheEnd(tuner, options.wait.value_or(std::numeric_limits<double>::infinity()));

  if (!tuner.Source().Failure().empty()) {
    complaints << kProgram << tuner.Source().Failure() << "\n";
  }
  const air::Reception& heard = tuner.Heard();
  if (tuner.Groups() == 0 && tuner.Source().PassedOver() > 0) {
    complaints << kProgram << tuner.Source().Path() << ": " << tuner.Source().PassedOver()
               << " lines, and none of them is a group\n";
  }
  if (options.compare.empty()) {
    out << HeardText(heard) << HeardSummary(heard) << std::endl;
    return static_cast<int>(tuner.Groups() > 0 ? Outcome::kAgrees : Outcome::kNotHeard);
  }
  const auto rows = Compare(prepared, heard, Machine().clock->Now());
  out << ReportText(rows) << Summary(rows) << "; " << HeardSummary(heard) << std::endl;
  return static_cast<int>(OutcomeOf(rows));
}

int RunJudge(const Options& options, std::ostream& out, std::ostream& complaints) {
  Prepared prepared;
  const std::string wrong = ReadPrepared(options.judge, prepared);
  if (!wrong.empty()) {
    complaints << kProgram << wrong << "\n";
    return kBadUse;
  }
  const air::StationFacts facts = FactsOf(prepared);
  const auto findings = air::Judge(facts);
  for (const auto& finding : findings) out << Words(finding) << "\n";
  if (prepared.groups) out << Words(air::FiguresOf(facts)) << "\n";
  out.flush();
  return findings.empty() ? 0 : 1;
}

}  // namespace corvalis::radio
