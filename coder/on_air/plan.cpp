#include "coder/on_air/plan.h"

#include <chrono>

#include "coder/digits.h"

namespace corvalis::coder {

using std::chrono::minutes;

void Plan::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  rows_.clear();
  for (int number = 0; number < coder.Sizes().plan; ++number) {
    // Enabled, hour, minute, day, month, year, Monday to Sunday, page.
    const Bytes body = *coder.Item(kPsnPlan, number);
    const int page = HexAt(body, 18, 2);
    if (!FlagAt(body, 0) || page >= coder.Sizes().page) continue;
    int weekdays = 0;
    for (std::size_t day = 0; day < 7; ++day) {
      if (FlagAt(body, 11 + day)) weekdays |= 1 << day;
    }
    rows_.push_back({.time = minutes(60 * DecimalAt(body, 1, 2) + DecimalAt(body, 3, 2)),
                     .day = DecimalAt(body, 5, 2),
                     .month = DecimalAt(body, 7, 2),
                     .year = DecimalAt(body, 9, 2),
                     .weekdays = weekdays,
                     .page = page});
  }
}

std::optional<int> Plan::PageAt(LocalMinute local) const {
  const auto today = std::chrono::floor<std::chrono::days>(local);
  const std::chrono::year_month_day date{today};
  const unsigned weekday = std::chrono::weekday(today).iso_encoding() - 1;
  std::optional<int> page;
  for (const Row& row : rows_) {
    if (row.time != local - today) continue;
    const bool on_date = row.day == static_cast<int>(static_cast<unsigned>(date.day())) &&
                         row.month == static_cast<int>(static_cast<unsigned>(date.month())) &&
                         row.year == static_cast<int>(date.year()) % 100;
    if (row.day == 0 ? (row.weekdays >> weekday & 1) != 0 : on_date) page = row.page;
  }
  return page;
}

}  // namespace corvalis::coder
