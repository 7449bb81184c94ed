#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "air/af_codes.h"
#include "air/words.h"
#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// A list that says something: it has been written, and begins with a count of 1 to 25.
[[nodiscard]] std::optional<air::AfCodes> FrequencyList(const Coder& coder, int list);

/// The alternative frequencies on the air, two codes at a time: one written list after the other,
/// each from its count to its last frequency.
class FrequencyRotation {
 public:
  using Pair = air::BytePair;

  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// What goes out next; without a list, that there is none.
  [[nodiscard]] Pair Next();

 private:
  Watch watch_{{kAf}};
  std::vector<Pair> pairs_;  // of all lists
  std::size_t at_ = 0;
};

}  // namespace corvalis::coder
