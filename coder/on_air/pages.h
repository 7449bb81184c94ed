#pragma once

#include <cstddef>
#include <vector>

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/air_time.h"
#include "coder/on_air/turn.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The in-house pages on the air, four characters at a time: each page that has a text from its
/// first character to the last that is no blank, its last group filled with 0D; again and again for
/// its rotation time, at least once, and then the next. Pages from 32 on have no number on the air.
class PageRotation {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// False if there is nothing to send; there is no next then.
  [[nodiscard]] bool HasText() const { return !pages_.empty(); }
  [[nodiscard]] air::Group6A Next(AirTime now);

 private:
  struct Page {
    int number;
    int seconds;
    Bytes text;  // without the blanks at its end
  };

  Watch watch_{{kIh}};
  std::vector<Page> pages_;
  Turn turn_;
  Page sent_{};  // as it is being sent
  std::size_t at_ = 0;
};

}  // namespace corvalis::coder
