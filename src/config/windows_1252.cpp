#include "config/windows_1252.h"

#include "air/utf8.h"

namespace corvalis {

std::string Utf8From1252(std::string_view text) {
  std::string utf8;
  for (const char c : text) {
    const int byte = static_cast<unsigned char>(c);
    const auto special = static_cast<std::size_t>(byte - kFirstSpecial1252);
    const int code = special < kSpecial1252.size() ? kSpecial1252[special] : byte;
    air::AppendUtf8(utf8, static_cast<char32_t>(code));
  }
  return utf8;
}

}  // namespace corvalis
