#include "station/country_table.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "station/language_codes.h"

namespace corvalis {
namespace {

std::string_view Name(std::uint16_t row) {
  return row == kNoRow ? std::string_view("none") : Countries()[row].name;
}

TEST(CountryTable, RowsAreWhatTheStandardAllows) {
  std::set<std::string_view> names;
  for (const CountryRecord& country : Countries()) {
    EXPECT_TRUE(country.country >= 1 && country.country <= 15) << country.name;
    EXPECT_NE(std::string_view("ADEF").find("0123456789ABCDEF"[country.ecc >> 4]),
              std::string_view::npos)
        << country.name;
    EXPECT_TRUE(names.insert(country.name).second) << country.name;
  }
}

TEST(CountryTable, KeysJoinCountryCodeAndGroup) {
  const std::tuple<int, int, int> cases[] = {
      {1, 0xA0, 0},  {1, 0xA6, 6},    {1, 0xD0, 7},  {1, 0xE4, 15}, {1, 0xF0, 16}, {2, 0xA0, 20},
      {5, 0xE0, 91}, {15, 0xF3, 299}, {3, 0xA7, 40}, {3, 0xE5, 40}, {0, 0xE0, -9}};
  for (const auto& [country, ecc, key] : cases) EXPECT_EQ(CountryKey(country, ecc), key) << ecc;
}

TEST(CountryTable, LastRowAndLastLineWinASharedKey) {
  const CountryIndex index;
  struct Case {
    int country, ecc;
    const char* by_row;
    const char* by_line;
  };
  const Case cases[] = {
      {0x8, 0xE4, "Portugal", "Portugal"},
      {0xE, 0xE2, "Spain", "Spain"},
      {0x9, 0xE1, "Faroe(Denmark)", "Faroe(Denmark)"},
      {0xF, 0xA5, "Mexico 4", "Virgin Islands [British]"},
      {0x1, 0xA0, "Puerto Rico 01", "Virgin Islands [USA] 01"},
      {0xE, 0xA0, "Puerto Rico 13", "Virgin Islands [USA] 13"},
      {0x5, 0xE0, "Italy", "Italy"},
      {0xC, 0xA0, "none", "none"},
  };
  for (const Case& c : cases) {
    const int key = CountryKey(c.country, c.ecc);
    EXPECT_EQ(Name(index.RowOfKey(key)), c.by_row);
    const std::uint16_t line = index.LineOfKey(key);
    EXPECT_EQ(line == kNoRow ? "none" : Countries()[index.RowOfLine(line)].name, c.by_line);
  }
  EXPECT_EQ(index.RowOfKey(-9), kNoRow);
  EXPECT_EQ(index.LineOfKey(301), kNoRow);
}

TEST(CountryTable, LinesAreInOrderOfTheirCharacterCodes) {
  const CountryIndex index;
  for (int line = 1; line < kCountries; ++line) {
    EXPECT_LT(Countries()[index.RowOfLine(line - 1)].name, Countries()[index.RowOfLine(line)].name);
  }
  EXPECT_EQ(Countries()[index.RowOfLine(0)].name, "Afghanistan");
}

TEST(LanguageCodes, NamedOnesComeFirstByName) {
  const LanguageCodeIndex index;
  EXPECT_EQ(index.NamedLines(), 102);
  for (int line = 1; line < index.NamedLines(); ++line) {
    EXPECT_LT(LanguageOfCode(index.CodeOfLine(line - 1)), LanguageOfCode(index.CodeOfLine(line)));
  }
  for (int code = 0; code < kLanguageCodes; ++code) {
    EXPECT_EQ(index.CodeOfLine(index.LineOfCode(code)), code);
    const bool unnamed = code == 0 || (code >= 0x2C && code <= 0x44);
    EXPECT_EQ(LanguageOfCode(code).empty(), unnamed) << code;
  }
  EXPECT_EQ(LanguageOfCode(0x15), "Italian");
  EXPECT_EQ(LanguageOfCode(0x2B), "Walloon");
  EXPECT_EQ(LanguageOfCode(0x45), "Zulu");
  EXPECT_EQ(LanguageOfCode(0x7F), "Amharic");
}

}  // namespace
}  // namespace corvalis
