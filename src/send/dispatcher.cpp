#include "send/dispatcher.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "link/serial_management.h"
#include "platform/platform.h"

namespace corvalis::send {

namespace {

constexpr double kFirstDelay = 1;
constexpr double kLongestDelay = 60;
constexpr std::int16_t kErrorUnaddressed = 8;
constexpr double kNever = std::numeric_limits<double>::infinity();

double Now() { return Machine().clock->Steady(); }

// True for what may be gone the next time.
bool MayPass(const Outcome& outcome) {
  if (outcome.kind == Outcome::Kind::kNoLine) return true;
  return outcome.kind == Outcome::Kind::kFailed && !StaysRefused(outcome.error) &&
         outcome.error != kErrorUnaddressed;
}

Outcome Kept(Outcome outcome) {
  outcome.words += "; it waits, and is tried again";
  return outcome;
}

void Tell(Job& job, const Answer& answer) {
  if (job.answered) std::exchange(job.answered, nullptr)(answer);
}

}  // namespace

Dispatcher::Dispatcher(Station& station, LineOwner& line, Sender& sender)
    : station_(station), line_(line), sender_(sender) {
  line_.BeforeExchange = [this] { TaBetween(); };
}

Dispatcher::~Dispatcher() { line_.BeforeExchange = nullptr; }

bool Dispatcher::Failing() const { return delay_ > 0 && Now() <= due_; }

void Dispatcher::Submit(Command command, Answered answered) {
  Job job{.command = std::move(command), .answered = std::move(answered)};
  if (stopping_) {
    return Tell(job, {.outcome = {.kind = Outcome::Kind::kFailed, .words = "the service ends"}});
  }
  if (Failing()) {
    Tell(job, {.outcome = job.command.read ? failure_ : Kept(failure_)});
    if (job.command.read) return;
  }
  waiting_.Add(std::move(job));
}

void Dispatcher::Begin() {
  Station::LoadForItems();
  under_way_ = true;
  const Outcome outcome = sender_.MakeReady();
  under_way_ = false;
  EscPressed = false;
  if (stopping_) return;
  if (MayPass(outcome)) return Fails(outcome);
  if (outcome.kind != Outcome::Kind::kDone && Note) Note(outcome.words);
}

double Dispatcher::Work() {
  while (!waiting_.Empty()) {
    if (Failing() && !stopping_) return due_;
    std::optional<Job> job = stopping_ ? waiting_.TakeTa() : waiting_.Take();
    if (!job) break;
    Execute(*std::move(job));
  }
  return kNever;
}

void Dispatcher::Stop() {
  stopping_ = true;
  if (under_way_ && !ta_under_way_) EscPressed = true;
}

void Dispatcher::Execute(Job job) {
  // Another link may be meant now.
  if (station_.LoadIfChanged()) line_.Close();
  under_way_ = true;
  ta_under_way_ = job.command.item == Item::kTa;
  Outcome outcome = sender_.Send(job.command);
  under_way_ = ta_under_way_ = false;
  EscPressed = false;
  Settle(std::move(job), std::move(outcome));
}

// The line is between two exchanges of another command.
void Dispatcher::TaBetween() {
  if (ta_under_way_ || delay_ > 0) return;
  std::optional<Job> ta = waiting_.TakeTa();
  if (!ta) return;
  ta_under_way_ = true;
  Outcome outcome = sender_.SendBetween(ta->command);
  ta_under_way_ = false;
  Settle(*std::move(ta), std::move(outcome));
}

void Dispatcher::Settle(Job job, Outcome outcome) {
  if (!MayPass(outcome) || stopping_) {
    if (!stopping_) Works();
    return Tell(job, {.outcome = std::move(outcome)});
  }
  const bool read = job.command.read;
  Tell(job, {.outcome = read ? outcome : Kept(outcome)});
  if (!read) waiting_.PutBack(std::move(job));
  Fails(std::move(outcome));
}

void Dispatcher::Fails(Outcome outcome) {
  if (delay_ == 0 && Note) Note(outcome.words + "; what comes waits");
  failure_ = std::move(outcome);
  waiting_.AnswerAll(Kept(failure_), failure_);
  delay_ = delay_ == 0 ? kFirstDelay : std::min(2 * delay_, kLongestDelay);
  due_ = Now() + delay_;
}

void Dispatcher::Works() {
  if (delay_ > 0 && Note) Note("the Coder takes commands again");
  delay_ = 0;
}

}  // namespace corvalis::send
