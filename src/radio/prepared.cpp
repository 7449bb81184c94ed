#include "radio/prepared.h"

#include <algorithm>

namespace corvalis::radio {

bool Prepared::On(int group) const {
  constexpr int kName = 0;
  constexpr int kClockTime = 4;
  if (!groups) return true;
  const auto takes_turns = [this](int number) {
    const Group& of = groups->at(static_cast<std::size_t>(number));
    return number != kClockTime && of.enabled && of.repetitions > 0;
  };
  if (group == kClockTime) return groups->at(kClockTime).enabled;
  if (takes_turns(group)) return true;
  if (group != kName) return false;
  for (int other = 0; other < kGroups; ++other) {
    if (takes_turns(other)) return false;
  }
  return true;
}

int Prepared::ItemAt(std::chrono::local_time<std::chrono::minutes> local) const {
  const auto today = std::chrono::floor<std::chrono::days>(local);
  const auto day = static_cast<unsigned>(std::chrono::year_month_day(today).day());
  int latest = 0;
  for (const ProgrammeItem& item : items) {
    const bool has_come = item.day == static_cast<int>(day) && item.time <= local - today;
    if (has_come) latest = std::max(latest, item.code);  // of one day the later code is greater
  }
  return latest;
}

}  // namespace corvalis::radio
