#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "screen/window.h"

namespace corvalis {

/// `N` controls of one kind under one name, each with its index: "Check1(0)", "Check1(1)" ...
template <class T, std::size_t N>
class ControlArray {
 public:
  ControlArray(Window& window, const std::string& name)
      : items_(Make(window, name, std::make_index_sequence<N>())) {}

  /// The control of an index; `std::out_of_range` outside 0 to `N` - 1.
  [[nodiscard]] T& operator[](int index) { return items_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] const T& operator[](int index) const {
    return items_.at(static_cast<std::size_t>(index));
  }

  [[nodiscard]] auto begin() { return items_.begin(); }
  [[nodiscard]] auto end() { return items_.end(); }
  [[nodiscard]] auto begin() const { return items_.begin(); }
  [[nodiscard]] auto end() const { return items_.end(); }

 private:
  template <std::size_t... I>
  static std::array<T, N> Make(Window& window, const std::string& name,
                               std::index_sequence<I...> /*indexes*/) {
    return {{T(window, name + "(" + std::to_string(I) + ")")...}};
  }

  std::array<T, N> items_;
};

}  // namespace corvalis
