#include "station/country_table.h"

#include <gtest/gtest.h>

#include <tuple>

#include "station/language_codes.h"

namespace corvalis {
namespace {

std::string_view Name(std::uint16_t row) {
  return row == kNoRow ? std::string_view("none") : Countries()[row].name;
}

TEST(CountryTable, LastRowAndLastLineWinASharedKey) {
  const CountryIndex index;
  const std::tuple<int, int, const char*, const char*> cases[] = {
      {0x8, 0xE4, "Portugal", "Portugal"},
      {0xE, 0xE2, "Spain", "Spain"},
      {0x9, 0xE1, "Faroe(Denmark)", "Faroe(Denmark)"},
      {0xF, 0xA5, "Mexico 4", "Virgin Islands [British]"},
      {0x1, 0xA0, "Puerto Rico 01", "Virgin Islands [USA] 01"},
      {0xC, 0xA0, "none", "none"},
      {0x0, 0xE0, "none", "none"},
  };
  for (const auto& [country, ecc, by_row, by_line] : cases) {
    const int key = CountryKey(country, ecc);
    EXPECT_EQ(Name(index.RowOfKey(key)), by_row);
    const std::uint16_t line = index.LineOfKey(key);
    EXPECT_EQ(line == kNoRow ? "none" : Countries()[index.RowOfLine(line)].name, by_line);
  }
}

TEST(LanguageCodes, NamedOnesComeFirstByName) {
  const LanguageCodeIndex index;
  for (int line = 1; line < index.NamedLines(); ++line) {
    EXPECT_LT(LanguageOfCode(index.CodeOfLine(line - 1)), LanguageOfCode(index.CodeOfLine(line)));
  }
  for (int code = 0; code < kLanguageCodes; ++code) {
    EXPECT_EQ(index.CodeOfLine(index.LineOfCode(code)), code);
    const bool unnamed = code == 0 || (code >= 0x2C && code <= 0x44);
    EXPECT_EQ(LanguageOfCode(code).empty(), unnamed) << code;
  }
}

}  // namespace
}  // namespace corvalis
