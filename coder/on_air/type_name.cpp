#include "coder/on_air/type_name.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <utility>

#include "coder/digits.h"

namespace corvalis::coder {

void TypeName::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  const int type = HexAt(*coder.Item(kPty), 0, 2);
  Bytes name = *coder.Item(kPtyn, type);
  const auto is_all = [&name](std::uint8_t c) {
    return std::ranges::all_of(name, [c](std::uint8_t byte) { return byte == c; });
  };
  has_name_ = !is_all(' ') && !is_all('-');
  if (!has_name_ || name == name_) return;
  if (!name_.empty()) flag_ = !flag_;
  name_ = std::move(name);
  segment_ = 0;
}

air::Group10A TypeName::Next() {
  std::array<std::uint8_t, 4> characters{};
  std::copy_n(name_.begin() + std::ssize(characters) * segment_, characters.size(),
              characters.begin());
  const air::Group10A next{
      .flag = flag_, .segment = segment_, .characters = air::FourBytes::Of(characters)};
  segment_ = 1 - segment_;
  return next;
}

}  // namespace corvalis::coder
