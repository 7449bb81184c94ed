#include "air/hex_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace corvalis::air {

namespace {

constexpr std::size_t kDigits = 4;  // of a block
constexpr std::string_view kMissing = "----";
constexpr std::string_view kBlanks = " \t";

}  // namespace

std::string HexLine(const Group& group) { return HexLine(Heard(group)); }

std::string HexLine(const HeardGroup& group) {
  std::string line;
  for (const auto& block : group.blocks) {
    if (!line.empty()) line += ' ';
    if (!block) {
      line += kMissing;
      continue;
    }
    for (int shift = 12; shift >= 0; shift -= 4) line += "0123456789ABCDEF"[*block >> shift & 0xF];
  }
  return line;
}

std::optional<HeardGroup> ReadHexLine(std::string_view line) {
  HeardGroup group;
  bool blanks = false;  // between blocks
  for (auto& block : group.blocks) {
    const std::size_t begin = std::min(line.find_first_not_of(kBlanks), line.size());
    blanks = blanks || (begin > 0 && &block != group.blocks.data());
    const std::string_view text = line.substr(begin, kDigits);
    line.remove_prefix(begin + text.size());
    if (text == kMissing) continue;
    std::uint16_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() < kDigits || error != std::errc() || end != text.data() + text.size()) {
      return std::nullopt;
    }
    block = value;
  }
  // A line that is ruled with dashes is no group of which nothing came over.
  if (!blanks && group == HeardGroup()) return std::nullopt;
  return group;
}

}  // namespace corvalis::air
