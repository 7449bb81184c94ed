#include "coder/on_air/programme_items.h"

#include <chrono>

#include "coder/digits.h"

namespace corvalis::coder {

using std::chrono::minutes;

bool ProgrammeItems::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return false;
  items_.clear();
  for (int number = 0; number < coder.Sizes().pin; ++number) {
    if (!coder.Written(kPin, number)) continue;
    // The digit of its number, issued, programme type in two digits, and the code.
    const int code = HexAt(*coder.Item(kPin, number), 4, 4);
    const int hour = code >> 6 & 0x1F;
    const int minute = code & 0x3F;
    if (hour > 23 || minute > 59) continue;
    items_.push_back({static_cast<unsigned>(code >> 11), minutes(60 * hour + minute),
                      static_cast<std::uint16_t>(code)});
  }
  return true;
}

std::uint16_t ProgrammeItems::At(std::optional<LocalMinute> local) const {
  if (!local) return 0;
  const auto today = std::chrono::floor<std::chrono::days>(*local);
  const auto day = static_cast<unsigned>(std::chrono::year_month_day(today).day());
  std::uint16_t latest = 0;
  for (const Item& item : items_) {
    // Of one day the later code is the greater one.
    if (item.day == day && item.time <= *local - today && item.code > latest) latest = item.code;
  }
  return latest;
}

}  // namespace corvalis::coder
