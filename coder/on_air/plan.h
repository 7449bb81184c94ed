#pragma once

#include <optional>
#include <vector>

#include "coder/coder.h"
#include "coder/on_air/clock.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The plan of pages: each enabled row makes its page the active one when its time comes, on its
/// date or, without a date, on its weekdays.
class Plan {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// The page that becomes active with this minute; of several the one of the last row.
  [[nodiscard]] std::optional<int> PageAt(LocalMinute local) const;

 private:
  struct Row {
    std::chrono::minutes time;
    int day;  // 0: by weekdays
    int month;
    int year;      // its last two digits
    int weekdays;  // bit 0 is Monday
    int page;
  };

  Watch watch_{{kPsnPlan}};
  std::vector<Row> rows_;  // that are enabled
};

}  // namespace corvalis::coder
