#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "coder/coder.h"

namespace corvalis::coder {

/// Notices that items of some commands have been written since it looked last.
class Watch {
 public:
  explicit Watch(std::vector<std::uint8_t> commands) : commands_(std::move(commands)) {}

  /// True the first time too.
  [[nodiscard]] bool Changed(const Coder& coder) {
    std::uint64_t now = 0;
    for (const std::uint8_t command : commands_) now += coder.Changes(command);
    if (seen_ == now) return false;
    seen_ = now;
    return true;
  }

 private:
  std::vector<std::uint8_t> commands_;
  std::optional<std::uint64_t> seen_;
};

}  // namespace corvalis::coder
