#pragma once

#include <deque>
#include <functional>
#include <optional>

#include "send/command.h"
#include "send/outcome.h"

namespace corvalis::send {

/// What became of a line that somebody gave: an outcome, or a newer one of the same item came.
struct Answer {
  bool replaced = false;
  Outcome outcome = {};
};
using Answered = std::function<void(const Answer& answer)>;

/// A command, and who wants to know what became of it.
struct Job {
  Command command;
  Answered answered;  ///< empty once it has been answered
};

/// What waits for the line: of each item the newest alone. TA goes first, all else in the order in
/// which the items came.
class Waiting {
 public:
  /// The older one of the same item is answered, and the newer one takes its place.
  void Add(Job job);
  /// Gives back what was taken and is to be tried again, as the last of all but TA; where a newer
  /// one waits meanwhile, the older one is answered.
  void PutBack(Job job);

  /// Takes the next one out.
  [[nodiscard]] std::optional<Job> Take();
  /// Takes the TA out, if one waits.
  [[nodiscard]] std::optional<Job> TakeTa();
  /// Answers all that wait. Reads then wait no more.
  void AnswerAll(const Outcome& values, const Outcome& reads);
  [[nodiscard]] bool Empty() const { return jobs_.empty(); }

 private:
  std::optional<Job> TakeAt(const std::deque<Job>::iterator& place);

  std::deque<Job> jobs_;
};

}  // namespace corvalis::send
