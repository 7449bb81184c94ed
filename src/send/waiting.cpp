#include "send/waiting.h"

#include <algorithm>
#include <string>
#include <utility>

namespace corvalis::send {

namespace {

bool IsTa(const Job& job) { return job.command.item == Item::kTa && !job.command.read; }

void AnswerReplaced(Job& job) {
  if (job.answered) std::exchange(job.answered, nullptr)({.replaced = true});
}

}  // namespace

void Waiting::Add(Job job) {
  const std::string key = job.command.Key();
  const auto older =
      std::ranges::find_if(jobs_, [&](const Job& one) { return one.command.Key() == key; });
  if (key.empty() || older == jobs_.end()) {
    jobs_.push_back(std::move(job));
  } else {
    Job replaced = std::exchange(*older, std::move(job));
    AnswerReplaced(replaced);
  }
}

void Waiting::PutBack(Job job) {
  const std::string key = job.command.Key();
  if (std::ranges::any_of(jobs_, [&](const Job& one) { return one.command.Key() == key; })) {
    AnswerReplaced(job);
  } else {
    jobs_.push_back(std::move(job));
  }
}

void Waiting::AnswerAll(const Outcome& values, const Outcome& reads) {
  std::deque<Job> waiting = std::exchange(jobs_, {});
  for (Job& job : waiting) {
    const bool read = job.command.read;
    if (job.answered) std::exchange(job.answered, nullptr)({.outcome = read ? reads : values});
    if (!read) Add(std::move(job));
  }
}

std::optional<Job> Waiting::Take() {
  if (std::optional<Job> ta = TakeTa()) return ta;
  return TakeAt(jobs_.begin());
}

std::optional<Job> Waiting::TakeTa() { return TakeAt(std::ranges::find_if(jobs_, IsTa)); }

std::optional<Job> Waiting::TakeAt(const std::deque<Job>::iterator& place) {
  if (place == jobs_.end()) return std::nullopt;
  Job job = std::move(*place);
  jobs_.erase(place);
  return job;
}

}  // namespace corvalis::send
