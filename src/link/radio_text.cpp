#include "link/radio_text.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "air/characters.h"
#include "air/utf8.h"
#include "config/config_data.h"
#include "config/windows_1252.h"

namespace corvalis {

namespace {

constexpr std::size_t kBytes = 256;
constexpr std::uint8_t kDelete = 0x7F;
using Table = std::array<std::uint8_t, kBytes>;

bool IsControl(std::uint8_t byte) { return byte < ' ' || byte == kDelete; }

template <class Translated>
Table MakeTable(Translated translated) {
  Table table{};
  for (std::size_t i = 0; i < kBytes; ++i) table[i] = translated(static_cast<std::uint8_t>(i));
  return table;
}

std::uint8_t Sent(std::uint8_t byte) {
  return IsControl(byte) ? byte : air::PlainRadioByte(CharacterOf1252(byte));
}

std::uint8_t Received(std::uint8_t byte) {
  if (IsControl(byte) && byte != air::kSoftHyphen) return byte;
  const char32_t character = air::RadioCharacter(byte);
  for (std::size_t i = ' '; i < kBytes; ++i) {
    const auto prepared = static_cast<std::uint8_t>(i);
    if (CharacterOf1252(prepared) == character) return prepared;
  }
  return static_cast<std::uint8_t>(air::PlainCharacterFor(character));
}

std::string Translated(std::string_view text, const Table& table) {
  std::string translated(text);
  if (!configData->RadioCharacters()) return translated;
  for (char& c : translated) c = static_cast<char>(table[static_cast<std::uint8_t>(c)]);
  return translated;
}

std::string Utf8(char32_t character) {
  std::string text;
  air::AppendUtf8(text, character);
  return text;
}

}  // namespace

std::string ToCoder(std::string_view text) {
  static const Table table = MakeTable(Sent);
  return Translated(text, table);
}

std::string FromCoder(std::string_view bytes) {
  static const Table table = MakeTable(Received);
  return Translated(bytes, table);
}

std::vector<RadioShown> ShownByRadios(std::string_view text) {
  const std::string sent = ToCoder(text);
  std::vector<RadioShown> all;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<std::uint8_t>(text[i]);
    const char32_t prepared = CharacterOf1252(byte);
    const char32_t shown = air::RadioCharacter(static_cast<std::uint8_t>(sent[i]));
    all.push_back({.prepared = Utf8(prepared),
                   .shown = Utf8(shown),
                   .differs = prepared != shown && !IsControl(byte)});
  }
  return all;
}

}  // namespace corvalis
