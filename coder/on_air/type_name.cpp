#include "coder/on_air/type_name.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
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

TypeName::Segment TypeName::Next() {
  Segment next{.flag = flag_, .number = segment_, .characters = {}};
  const std::size_t length = next.characters.size();
  std::copy_n(name_.begin() + static_cast<std::ptrdiff_t>(length) * segment_, length,
              next.characters.begin());
  segment_ = 1 - segment_;
  return next;
}

}  // namespace corvalis::coder
