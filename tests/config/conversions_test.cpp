#include "config/conversions.h"

#include <gtest/gtest.h>

namespace corvalis {
namespace {

TEST(Conversions, HexToLong) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"0", 0},   {"fF", 255},   {"00g", -1}, {"", -1}, {" 1", -1}, {"FFFFFFFFFF", 0x7FFFFFFF},
      {"-1", -1}, {"0001A", 26}, {"0x1", -1}};
  for (const auto& [text, value] : cases) EXPECT_EQ(HexToLong(text), value) << text;
}

TEST(Conversions, LongToHex) {
  struct Case {
    std::int32_t value;
    std::int16_t width;
    const char* text;
  };
  const Case cases[] = {{0x2F, 1, "2F"}, {0x2F, 4, "002F"},           {0, 2, "00"},
                        {0, 0, ""},      {0x7FFFFFFF, 2, "7FFFFFFF"}, {10, 1, "A"}};
  for (const Case& c : cases) EXPECT_EQ(LongToHex(c.value, c.width), c.text);
}

TEST(Conversions, BitsAndHex) {
  const std::tuple<const char*, std::int16_t, const char*> to_hex[] = {
      {"101", 1, "5"}, {"", 2, "00"}, {"11110000", 1, "F0"}, {"1", 3, "001"}, {"1x111111", 2, "F"}};
  for (const auto& [bits, width, hex] : to_hex) EXPECT_EQ(BitsToHex(bits, width), hex) << bits;
  // A missing digit is filled with one bit, and a lower-case one gives nothing but counts.
  const std::tuple<const char*, std::int16_t, const char*> to_bits[] = {
      {"F", 8, "01111"}, {"5A", 8, "01011010"}, {"a", 4, ""}, {"", 8, "00"}};
  for (const auto& [hex, width, bits] : to_bits) EXPECT_EQ(HexToBits(hex, width), bits) << hex;
}

TEST(Conversions, FixedPoint) {
  const std::tuple<float, int, int, const char*> cases[] = {
      {87.6F, 3, 3, "087.600"},   {107.975F, 3, 3, "107.975"},
      {0.F, 3, 3, "000.000"},     {107.9F, 3, 1, "107.9"},
      {87.45F, 3, 1, "087.5"},    {87.44F, 3, 1, "087.4"},
      {99.95F, 3, 1, "100.0"},    {160.5F, 3, 0, "161"},
      {1602.F, 3, 0, "1602"},     {-0.04F, 3, 1, "000.0"},
      {-3.25F, 3, 1, "-003.3"},   {1e20F, 1, 1, "100000000000000000000.0"},
      {100.125F, 1, 3, "100.125"}};
  for (const auto& [value, width, decimals, text] : cases) {
    EXPECT_EQ(FixedPoint(value, width, decimals), text);
  }
  EXPECT_EQ(ParseFloat("107.975"), 107.975F);
  for (const std::string& none : {std::string(), std::string("x"), std::string(40, '9')}) {
    EXPECT_FALSE(ParseFloat(none)) << none;
  }
}

TEST(Conversions, PinCode) {
  using std::chrono::minutes;
  EXPECT_EQ(PinCode(0, minutes(0)), "0000");
  EXPECT_EQ(PinCode(31, minutes(23 * 60 + 59)), "FDFB");
  EXPECT_EQ(PinCode(1, minutes(60 + 1)), "0841");
}

TEST(Conversions, IsWholeNumber) {
  for (const char* whole : {"0", "12", "-12", "+12", "32767", "-32768"}) {
    EXPECT_TRUE(IsWholeNumber(whole)) << whole;
  }
  for (const char* other : {"", "12.0", "12,0", "1e3", "32768", "abc", "1 2", "-", "+-1", "0x10"}) {
    EXPECT_FALSE(IsWholeNumber(other)) << other;
  }
}

TEST(Conversions, PickListCountTakesTheFirstCountThereIs) {
  EXPECT_EQ(PickListCount(7, 9, 50), 7);
  EXPECT_EQ(PickListCount(-1, 9, 50), 9);
  EXPECT_EQ(PickListCount(-1, 0, 50), 50);
}

TEST(Conversions, GetToken) {
  const std::tuple<const char*, std::int16_t, const char*> cases[] = {
      {"a,,b", 0, "a"}, {"a,,b", 1, ""}, {"a,,b", 2, "b"}, {"a,,b", 3, ""}, {"", 0, ""}};
  for (const auto& [text, index, token] : cases) EXPECT_EQ(GetToken(text, index, ","), token);
  EXPECT_EQ(GetToken("a; b; c", 1, "; "), "b");
}

TEST(Conversions, SignedHours) {
  const std::pair<int, const char*> cases[] = {
      {0, "+00.0"}, {3, "+01.5"}, {-1, "-00.5"}, {-24, "-12.0"}, {200, "+100.0"}};
  for (const auto& [half_hours, text] : cases) EXPECT_EQ(SignedHours(half_hours), text);
}

TEST(Conversions, PercentRoundsHalvesUp) {
  const std::tuple<int, int, const char*> cases[] = {{5, 0, "0 %"},
                                                     {2, 3, "67 %"},
                                                     {1, 8, "13 %"},
                                                     {1, 201, "0 %"},
                                                     {50000000, 50000000, "100 %"}};
  for (const auto& [part, whole, text] : cases) EXPECT_EQ(Percent(part, whole), text) << part;
}

TEST(Conversions, ParseNumber) {
  const std::pair<const char*, double> numbers[] = {{"0", 0},         {"12", 12},  {"+01.5", 1.5},
                                                    {"-1.5", -1.5},   {".5", 0.5}, {"5.", 5},
                                                    {"107.90", 107.9}};
  for (const auto& [text, value] : numbers) EXPECT_EQ(ParseNumber(text), value) << text;
  for (const char* other :
       {"", "+", "-", ".", "x", "1,5", "1 ", " 1", "1e3", "0x10", "+-1", "inf", "nan", "1.2.3"}) {
    EXPECT_EQ(ParseNumber(other), std::nullopt) << other;
  }
  EXPECT_EQ(LeadingNumber(" 98.5 MHz"), 98.5);
}

}  // namespace
}  // namespace corvalis
