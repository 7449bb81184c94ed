#include "config/windows_1252.h"

#include "air/utf8.h"

namespace corvalis {

char32_t CharacterOf1252(std::uint8_t byte) {
  const auto special = static_cast<std::size_t>(byte - kFirstSpecial1252);
  return special < kSpecial1252.size() ? kSpecial1252[special] : byte;
}

std::string Utf8From1252(std::string_view text) {
  std::string utf8;
  for (const char c : text) air::AppendUtf8(utf8, CharacterOf1252(static_cast<std::uint8_t>(c)));
  return utf8;
}

}  // namespace corvalis
