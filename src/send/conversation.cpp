#include "send/conversation.h"

#include <utility>

#include "send/answers.h"

namespace corvalis::send {

namespace {

constexpr const char* kTooLong = "the line is longer than 4096 bytes";

// `manners` are the client's; the client itself may have gone.
std::string AnswerText(const Conversation::Manners& manners, std::string_view line, bool terse,
                       const Answer& answer) {
  const Outcome& outcome = answer.outcome;
  const bool done = outcome.kind == Outcome::Kind::kDone;
  if (terse) return done ? "OK\n" : "NO\n";
  if (manners.json) {
    Outcome told = outcome;
    if (answer.replaced) told.values = {{"replaced", true}};
    return AsJson(line, 0, told) + "\n";
  }
  if (answer.replaced) return "replaced\n";
  if (!done) return "error: " + outcome.words + "\n";
  return outcome.read.empty() ? "ok\n" : outcome.read + "\nok\n";
}

}  // namespace

Conversation::Conversation(Dispatcher& dispatcher, Manners manners)
    : dispatcher_(dispatcher), manners_(manners) {}

void Conversation::Take(std::string_view bytes) {
  held_ += bytes;
  TakeLines();
}

void Conversation::TakeEnd() {
  if (!held_.empty()) Take("\n");
}

void Conversation::TakeLines() {
  if (std::exchange(taking_, true)) return;
  std::size_t begin = 0;
  while (!Full()) {
    const std::size_t end = held_.find('\n', begin);
    if (end == std::string::npos) break;
    const std::string line = held_.substr(begin, end - begin);
    begin = end + 1;
    if (std::exchange(too_long_, false)) continue;
    TakeLine(line);
  }
  held_.erase(0, begin);
  if (too_long_ || (held_.size() > kLongestLine && held_.find('\n') == std::string::npos)) {
    if (!too_long_) Refuse({}, false, kTooLong);
    too_long_ = true;
    held_.clear();
  }
  taking_ = false;
}

void Conversation::TakeLine(std::string_view line) {
  if (line.size() > kLongestLine) return Refuse({}, false, kTooLong);
  Parsed parsed = ParseLine(line, manners_.rules);
  if (!parsed.command && parsed.error.empty()) return;
  if (!parsed.command) return Refuse(line, parsed.terse, parsed.error);
  if (parsed.command->item == Item::kRaw && !manners_.raw) {
    return Refuse(line, false, "frames are not taken here, as they can lock a Coder away");
  }
  const auto slot = std::make_shared<Slot>();
  state_->waiting.push_back(slot);
  const auto answered = [slot, manners = manners_, text = parsed.command->line,
                         terse = parsed.terse,
                         state = std::weak_ptr(state_)](const Answer& answer) {
    slot->text = AnswerText(manners, text, terse, answer);
    slot->answered = true;
    const std::shared_ptr<State> alive = state.lock();
    if (alive && alive->ready) alive->ready();
  };
  dispatcher_.Submit(*std::move(parsed.command), answered);
}

void Conversation::Refuse(std::string_view line, bool terse, const std::string& why) {
  const auto slot = std::make_shared<Slot>();
  slot->text =
      AnswerText(manners_, line, terse, {.outcome = {.kind = Outcome::Kind::kUnfit, .words = why}});
  slot->answered = true;
  state_->waiting.push_back(slot);
  if (state_->ready) state_->ready();
}

std::string Conversation::Answers() {
  std::string text;
  // Called again from within it, it has this call go on.
  if (std::exchange(answering_, true)) return text;
  while (Owes() && state_->waiting.front()->answered) {
    text += state_->waiting.front()->text;
    state_->waiting.pop_front();
    TakeLines();
  }
  answering_ = false;
  return text;
}

}  // namespace corvalis::send
