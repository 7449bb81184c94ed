#include "coder/on_air/clock.h"

#include "coder/digits.h"

namespace corvalis::coder {

using std::chrono::hours;
using std::chrono::minutes;

void Clock::Follow(const Coder& coder, AirTime now) {
  if (!watch_.Changed(coder) || !coder.Written(kCt)) return;
  // Year, month, day, weekday, hour, minute, two numbers of names, the offset and 24.
  const Bytes body = *coder.Item(kCt);
  const std::chrono::year_month_day day{
      std::chrono::year(2000 + DecimalAt(body, 0, 2)),
      std::chrono::month(static_cast<unsigned>(DecimalAt(body, 2, 2))),
      std::chrono::day(static_cast<unsigned>(DecimalAt(body, 4, 2)))};
  set_ = true;
  set_at_ = now;
  begins_ =
      std::chrono::local_days(day) + hours(DecimalAt(body, 7, 2)) + minutes(DecimalAt(body, 9, 2));
  offset_ = DecimalAt(body, 15, 2) - 24;
}

std::optional<LocalMinute> Clock::Local(AirTime at) const {
  if (!set_) return std::nullopt;
  return begins_ + std::chrono::floor<minutes>(at - set_at_);
}

UtcMinute Clock::Utc(LocalMinute local) const {
  return UtcMinute(local.time_since_epoch() - minutes(30 * offset_));
}

}  // namespace corvalis::coder
