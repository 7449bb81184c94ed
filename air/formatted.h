#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace corvalis::air {

/// Values in words as `printf` puts them, cut behind 95 characters.
template <typename... Values>
[[nodiscard]] std::string Formatted(const char* form, Values... values) {
  std::array<char, 96> text{};
  std::snprintf(text.data(), text.size(), form, values...);
  return text.data();
}

}  // namespace corvalis::air
