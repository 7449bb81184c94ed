#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace corvalis::coder {

/// The value of `count` digits of a body from `at` on, to a base up to 16. A byte that is no
/// upper-case hexadecimal digit counts as 0.
[[nodiscard]] constexpr int DigitsAt(std::span<const std::uint8_t> body, std::size_t at,
                                     std::size_t count, int base) {
  int value = 0;
  for (const std::uint8_t byte : body.subspan(at, count)) {
    const bool decimal = byte >= '0' && byte <= '9';
    const bool letter = byte >= 'A' && byte <= 'F';
    value = value * base + (decimal ? byte - '0' : letter ? byte - 'A' + 10 : 0);
  }
  return value;
}

[[nodiscard]] constexpr int HexAt(std::span<const std::uint8_t> body, std::size_t at,
                                  std::size_t count) {
  return DigitsAt(body, at, count, 16);
}

[[nodiscard]] constexpr int DecimalAt(std::span<const std::uint8_t> body, std::size_t at,
                                      std::size_t count) {
  return DigitsAt(body, at, count, 10);
}

[[nodiscard]] constexpr bool FlagAt(std::span<const std::uint8_t> body, std::size_t at) {
  return body[at] == '1';
}

}  // namespace corvalis::coder
