#include "air/characters.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "air/character_table.h"

namespace corvalis::air {

namespace {

constexpr char32_t kSoftHyphenCharacter = 0x00AD;
constexpr char32_t kNoCharacter = 0xFFFD;
constexpr std::uint8_t kUnknown = '?';

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

// The first character of a text that is not empty, which loses its bytes.
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
    if (length <= tails || character < kForms[tails].least) character = kNoCharacter;
  }
  text.remove_prefix(length);
  return character;
}

}  // namespace

char32_t RadioCharacter(std::uint8_t byte) {
  if (byte == kSoftHyphen) return kSoftHyphenCharacter;
  return byte < kFirstRadioCharacter ? U' ' : kRadioCharacters[byte - kFirstRadioCharacter];
}

std::string RadioText(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) AppendUtf8(text, RadioCharacter(byte));
  return text;
}

std::optional<std::uint8_t> RadioByte(char32_t character) {
  for (const std::uint8_t control : {kLineBreak, kEndOfHeadline, kEndOfText}) {
    if (character == control) return control;
  }
  if (character == kSoftHyphenCharacter) return kSoftHyphen;
  // A blank is the first of those that show as one.
  const auto* const found = std::ranges::find(kRadioCharacters, character);
  if (found == kRadioCharacters.end()) return std::nullopt;
  return static_cast<std::uint8_t>(found - kRadioCharacters.begin() + kFirstRadioCharacter);
}

std::uint8_t PlainRadioByte(char32_t character) {
  if (const auto byte = RadioByte(character)) return *byte;
  if (character >= kFirstAccented && character < kFirstAccented + kAccentless.size()) {
    return static_cast<std::uint8_t>(kAccentless[character - kFirstAccented]);
  }
  const auto* const found =
      std::ranges::find(kPlainCharacters, character, &PlainCharacter::character);
  return found == kPlainCharacters.end() ? kUnknown : static_cast<std::uint8_t>(found->plain);
}

std::vector<std::uint8_t> RadioBytes(std::string_view utf8) {
  std::vector<std::uint8_t> bytes;
  while (!utf8.empty()) bytes.push_back(PlainRadioByte(TakeUtf8(utf8)));
  return bytes;
}

}  // namespace corvalis::air
