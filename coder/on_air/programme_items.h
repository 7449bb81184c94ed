#pragma once

#include <optional>
#include <vector>

#include "air/words.h"
#include "coder/coder.h"
#include "coder/on_air/clock.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The programme item that is on: of those for today the latest whose time has come.
class ProgrammeItems {
 public:
  /// Looks at what has been written; true if it is other than before.
  bool Follow(const Coder& coder);
  /// The item's number; all 0 if none is on, or there is no time.
  [[nodiscard]] air::ItemNumber At(std::optional<LocalMinute> local) const;

 private:
  Watch watch_{{kPin}};
  std::vector<air::ItemNumber> items_;
};

}  // namespace corvalis::coder
