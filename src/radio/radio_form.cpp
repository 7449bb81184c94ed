#include "radio/radio_form.h"

#include <utility>

#include "air/judge.h"
#include "radio/facts.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

constexpr int kStalls = 3;  // seconds without a group

}  // namespace

std::string RadioForm::OpenSource(const std::string& path) {
  // Tried first, so that a wrong name leaves the station that is heard.
  GroupSource trial;
  if (std::string wrong = trial.Open(path); !wrong.empty()) return wrong;
  trial.Close();
  from_ = 0;
  came_ = steady_;
  return tuner_.Open(path);
}

std::string RadioForm::OpenStation(const std::string& path) {
  Prepared read;
  std::string wrong = ReadPrepared(path, read);
  if (wrong.empty()) station_ = std::move(read);
  return wrong;
}

bool RadioForm::Listen(double steady) {
  steady_ = steady;
  const std::uint64_t before = tuner_.Groups();
  const bool more = tuner_.Listen(steady);
  if (tuner_.Groups() != before) came_ = steady;
  return more;
}

std::string RadioForm::SourceInWords() const {
  const GroupSource& source = tuner_.Source();
  const std::string groups = std::to_string(tuner_.Groups());
  switch (source.Now()) {
    case GroupSource::State::kClosed:
      return InWords("no source");
    case GroupSource::State::kWaiting:
      return InWords("waiting for groups");
    case GroupSource::State::kFailed:
      return source.Failure();
    case GroupSource::State::kEnded:
      return InWords("%1 groups, the source has ended", {groups});
    case GroupSource::State::kComing:
      break;
  }
  const int silent = static_cast<int>(steady_ - came_);
  if (silent < kStalls) return InWords("%1 groups", {groups});
  return InWords("%1 groups, nothing for %2 seconds", {groups, std::to_string(silent)});
}

bool RadioForm::Compare(DateTime now) {
  std::vector<Row> rows;
  if (station_) rows = radio::Compare(*station_, Heard(), now, from_);
  if (rows == rows_) return false;
  rows_ = std::move(rows);
  return true;
}

std::vector<std::string> RadioForm::Findings() const {
  std::vector<std::string> findings;
  if (!station_) return findings;
  const air::StationFacts facts = FactsOf(*station_);
  for (const auto& finding : air::Judge(facts)) findings.push_back(Words(finding));
  if (station_->groups) findings.push_back(Words(air::FiguresOf(facts)));
  return findings;
}

}  // namespace corvalis::radio
