#pragma once

#include <chrono>
#include <functional>

#include "screen/control.h"
#include "screen/window.h"

namespace corvalis {

/// The days of one month, of which one is chosen.
class Calendar : public Control {
 public:
  using Control::Control;

  [[nodiscard]] std::chrono::year_month_day Date() const { return date_; }
  /// Shows the month of `date`, whichever the operator has turned to, and raises `Change` if that
  /// is another date. A date that does not exist is not taken.
  void SetDate(std::chrono::year_month_day date) {
    if (!date.ok()) return;
    const bool another = date_ != date;
    date_ = date;
    Redraw();
    if (another && Change) Change();
  }

  /// The operator picks a day, which takes the focus.
  void Pick(std::chrono::year_month_day date) {
    if (TakesEvents() && ParentWindow().MoveFocus(this)) SetDate(date);
  }

  std::function<void()> Change;

 private:
  std::chrono::year_month_day date_{std::chrono::year(2000), std::chrono::January,
                                    std::chrono::day(1)};
};

}  // namespace corvalis
