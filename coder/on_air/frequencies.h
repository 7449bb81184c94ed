#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The alternative frequencies on the air, two codes at a time: one written list after the other,
/// each from its count to its last frequency. A list that begins with no count, or with that of
/// none, says nothing.
class FrequencyRotation {
 public:
  using Pair = std::array<std::uint8_t, 2>;

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
