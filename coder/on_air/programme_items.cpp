#include "coder/on_air/programme_items.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

#include "coder/digits.h"

namespace corvalis::coder {

bool ProgrammeItems::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return false;
  items_.clear();
  for (int number = 0; number < coder.Sizes().pin; ++number) {
    if (!coder.Written(kPin, number)) continue;
    // The digit of its number, issued, programme type in two digits, and the code.
    const auto code = static_cast<std::uint16_t>(HexAt(*coder.Item(kPin, number), 4, 4));
    const auto item = air::FromWord<air::ItemNumber>(code);
    if (item.hour < 24 && item.minute < 60) items_.push_back(item);
  }
  return true;
}

air::ItemNumber ProgrammeItems::At(std::optional<LocalMinute> local) const {
  if (!local) return {};
  const auto today = std::chrono::floor<std::chrono::days>(*local);
  const unsigned day{std::chrono::year_month_day(today).day()};
  const std::chrono::hh_mm_ss time(*local - today);
  const air::ItemNumber now{.day = static_cast<int>(day),
                            .hour = static_cast<int>(time.hours().count()),
                            .minute = static_cast<int>(time.minutes().count())};
  air::ItemNumber latest;
  for (const air::ItemNumber& item : items_) {
    if (item.day == now.day && item <= now) latest = std::max(latest, item);
  }
  return latest;
}

}  // namespace corvalis::coder
