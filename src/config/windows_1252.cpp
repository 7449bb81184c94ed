#include "config/windows_1252.h"

namespace corvalis {

std::string Utf8From1252(std::string_view text) {
  std::string utf8;
  for (const char c : text) {
    const int byte = static_cast<unsigned char>(c);
    const auto special = static_cast<std::size_t>(byte - kFirstSpecial1252);
    const int code = special < kSpecial1252.size() ? kSpecial1252[special] : byte;
    if (code < 0x80) {
      utf8 += c;
    } else if (code < 0x800) {
      utf8 += {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 0x3F))};
    } else {
      utf8 += {static_cast<char>(0xE0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3F)),
               static_cast<char>(0x80 | (code & 0x3F))};
    }
  }
  return utf8;
}

}  // namespace corvalis
