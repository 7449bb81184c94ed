#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "coder/coder.h"
#include "coder/on_air/clock.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The programme item that is on: of those for today the latest whose time has come.
class ProgrammeItems {
 public:
  /// Looks at what has been written; true if it is other than before.
  bool Follow(const Coder& coder);
  /// The item's number as groups carry it: day, hour and minute in 5, 5 and 6 bits; 0 if none is
  /// on, or there is no time.
  [[nodiscard]] std::uint16_t At(std::optional<LocalMinute> local) const;

 private:
  struct Item {
    unsigned day;
    std::chrono::minutes time;
    std::uint16_t code;
  };

  Watch watch_{{kPin}};
  std::vector<Item> items_;
};

}  // namespace corvalis::coder
