#include "air/utf8.h"

#include <array>
#include <cstddef>

namespace corvalis::air {

namespace {

constexpr char32_t kNoCharacter = 0xFFFD;

}  // namespace

void AppendUtf8(std::string& text, char32_t character) {
  const auto tail = [&](int shift) {
    text += static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    tail(0);
  } else {
    text += static_cast<char>(0xE0 | character >> 12);
    tail(6);
    tail(0);
  }
}

char32_t TakeUtf8(std::string_view& text) {
  const auto byte = [&text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  struct Form {
    unsigned char mask, lead;
    char32_t least;
  };
  constexpr std::array kForms = {Form{0x80, 0x00, 0x0}, Form{0xE0, 0xC0, 0x80},
                                 Form{0xF0, 0xE0, 0x800}, Form{0xF8, 0xF0, 0x10000}};
  std::size_t tails = 0;
  while (tails < kForms.size() && (byte(0) & kForms[tails].mask) != kForms[tails].lead) ++tails;
  char32_t character = kNoCharacter;
  std::size_t length = 1;
  if (tails < kForms.size()) {
    character = byte(0) & static_cast<unsigned char>(~kForms[tails].mask);
    while (length <= tails && length < text.size() && (byte(length) & 0xC0) == 0x80) {
      character = character << 6 | (byte(length++) & 0x3F);
    }
    // One that is cut short comes out too small, as one that is longer than it need be.
    if (character < kForms[tails].least) character = kNoCharacter;
  }
  text.remove_prefix(length);
  return character;
}

}  // namespace corvalis::air
