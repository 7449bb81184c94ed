#include "air/characters.h"

#include <algorithm>

#include "air/character_table.h"
#include "air/utf8.h"

namespace corvalis::air {

namespace {

constexpr char32_t kSoftHyphenCharacter = 0x00AD;
constexpr char kUnknown = '?';

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
  return RadioByte(character).value_or(static_cast<std::uint8_t>(PlainCharacterFor(character)));
}

char PlainCharacterFor(char32_t character) {
  if (character >= kFirstAccented && character < kFirstAccented + kAccentless.size()) {
    return kAccentless[character - kFirstAccented];
  }
  const auto* const found =
      std::ranges::find(kPlainCharacters, character, &PlainCharacter::character);
  return found == kPlainCharacters.end() ? kUnknown : found->plain;
}

std::vector<std::uint8_t> RadioBytes(std::string_view utf8) {
  std::vector<std::uint8_t> bytes;
  while (!utf8.empty()) bytes.push_back(PlainRadioByte(TakeUtf8(utf8)));
  return bytes;
}

}  // namespace corvalis::air
