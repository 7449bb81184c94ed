// The characters of radios, both ways.

#include "air/characters.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <fstream>
#include <string>

#include "support/places.h"

namespace corvalis::test {
namespace {

// Reads "24 U+00A4 ¤".
TEST(RadioCharacters, AreThoseOfTheStandard) {
  std::ifstream facts(std::string(kAirFacts) + "/characters.txt");
  if (!facts) GTEST_SKIP() << "the facts are not here";
  std::array<char32_t, 256> expected{};
  expected.fill(U' ');
  expected[air::kSoftHyphen] = 0xAD;
  int rows = 0;
  for (std::string line; std::getline(facts, line);) {
    if (line.substr(2, 3) != " U+") continue;
    unsigned byte = 0;
    unsigned character = 0;
    std::from_chars(line.data(), line.data() + 2, byte, 16);
    std::from_chars(line.data() + 5, line.data() + 9, character, 16);
    expected.at(byte) = character;
    EXPECT_EQ(air::RadioByte(character), byte) << line;
    const std::array shown = {static_cast<std::uint8_t>(byte)};
    EXPECT_EQ(air::RadioText(shown), line.substr(10)) << line;
    ++rows;
  }
  EXPECT_EQ(rows, 222);
  for (std::size_t byte = 0; byte < expected.size(); ++byte) {
    EXPECT_EQ(air::RadioCharacter(static_cast<std::uint8_t>(byte)), expected[byte]) << byte;
  }
}

TEST(RadioCharacters, ComeNearestOneForOne) {
  const std::pair<const char*, std::string> texts[] = {
      {"Vega Kväll", "Vega Kv\x91ll"},
      {"$ ¤ ― ‖ ¯ €", "\xAB \x24 \x5E \x60 \x7E \xA9"},
      {"l’été – «oui» „ja“…", "l'\x82t\x82 - \"oui\" \"ja\"."},
      {"Ąą Łódź ŐŰ Ÿÿ ŠŽ Ĵ ș",
       "Aa L\x86"
       "d\xFD OU Yy \xCC\xCD J s"},
      {"a^b`c~d", "a'b'c-d"},
      {"дом 音 😀", "??? ? ?"},
      {"\r\n\xC2\xAD", "\x0D\x0A\x1F"},
      {"a\xFF\xC3 \xE2\x80", "a?? ?"},
      {"\xC0\xAF \xF4\x80\x80", "? ?"},
  };
  for (const auto& [text, bytes] : texts) {
    const auto radio = air::RadioBytes(text);
    EXPECT_EQ(std::string(radio.begin(), radio.end()), bytes) << text;
  }
}

}  // namespace
}  // namespace corvalis::test
