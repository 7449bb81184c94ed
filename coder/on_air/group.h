#pragma once

#include <array>
#include <cstdint>

namespace corvalis::coder {

/// The four blocks of a group, without their checkwords.
struct Group {
  std::array<std::uint16_t, 4> blocks{};

  bool operator==(const Group&) const = default;
};

/// Two bytes as the half of a block each.
[[nodiscard]] constexpr int TwoBytes(std::uint8_t first, std::uint8_t second) {
  return first << 8 | second;
}

/// What every group of a station carries, and what follows from the kind of group.
struct GroupHead {
  int pi = 0;
  bool tp = false;
  int pty = 0;
  int type = 0;       ///< 0 to 15
  bool is_b = false;  ///< block 3 is the PI again

  /// `own` are the 5 bits of block 2 that are the group's own.
  [[nodiscard]] Group With(int own, int third, int fourth) const {
    const int second = type << 12 | (is_b ? 1 << 11 : 0) | (tp ? 1 << 10 : 0) | pty << 5 | own;
    return {{Word(pi), Word(second), Word(is_b ? pi : third), Word(fourth)}};
  }

 private:
  static std::uint16_t Word(int value) { return static_cast<std::uint16_t>(value); }
};

}  // namespace corvalis::coder
