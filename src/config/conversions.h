#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace corvalis {

/// How numbers and bit strings become the printable bytes of the line, the file and the screens.
/// Nothing here reports anything or depends on the locale.

/// The value of hexadecimal digits of either case; -1 at the first other character, and for an
/// empty text. A value beyond 32 bits gives the largest 32-bit one.
[[nodiscard]] std::int32_t HexToLong(std::string_view text);

/// Upper-case hexadecimal digits, at least `width` of them; more where the value needs more. The
/// value must not be negative. A value of 0 with width 0 gives an empty text.
[[nodiscard]] std::string LongToHex(std::int32_t value, std::int16_t width);

/// The same for a place of `most` digits: of a value that has more, and of a negative one in its
/// 32 bits, the first of them.
[[nodiscard]] std::string HexDigits(std::int32_t value, int least, int most);

/// One upper-case digit for each group of four of the "0" and "1" in `bits`, aligned to the right
/// and filled with "0" to `width` digits. A group of other characters gives no digit, but counts.
[[nodiscard]] std::string BitsToHex(std::string_view bits, std::int16_t width);

/// Four bits for each of "0" to "9" and "A" to "F"; any other character gives nothing, but counts.
/// For each digit that is missing to `width` bits, one "0" (one bit, not four) is put in front.
[[nodiscard]] std::string HexToBits(std::string_view hex, std::int16_t width);

/// The programme item number of a day (0 to 31) and a time: day, hour and minute in 5, 5 and 6
/// bits, as four hexadecimal digits. Of a day outside that range only the low 5 bits are kept.
[[nodiscard]] std::string PinCode(std::int16_t day, std::chrono::minutes time_of_day);

/// True for a decimal integer of 16 bits, with or without a sign.
[[nodiscard]] bool IsWholeNumber(std::string_view text);

/// The first of the three that is greater than 0; `fallback` in any case if the others aren't.
[[nodiscard]] std::int16_t PickListCount(std::int16_t first, std::int16_t second,
                                         std::int16_t fallback);

/// The token of that index, from 0, between separators; empty beyond the last one. Empty tokens
/// count.
[[nodiscard]] std::string GetToken(std::string_view text, std::int16_t index,
                                   std::string_view separator);

/// The decimal number that the whole text is, with or without a sign; nullopt for anything else
/// and for a number beyond `Int`.
template <std::signed_integral Int>
[[nodiscard]] std::optional<Int> ParseDecimal(std::string_view text);
extern template std::optional<std::int16_t> ParseDecimal(std::string_view text);
extern template std::optional<std::int32_t> ParseDecimal(std::string_view text);

/// At least `width` decimal digits, filled with "0", behind the sign of a negative value: the
/// formats "0", "00" and "000" of the screens.
[[nodiscard]] std::string Digits(int value, int width);

/// The time of the day that a text is, "9:05" or "09:05"; nullopt for anything else.
[[nodiscard]] std::optional<std::chrono::minutes> ParseTime(std::string_view text);
/// `text` with ":" in the place of ".", which is nearer on a keypad.
[[nodiscard]] std::string WithColons(std::string text);
/// The format "hh:mm", for 0:00 to 23:59.
[[nodiscard]] std::string TimeText(std::chrono::minutes time_of_day);
/// The date that a text is: day, month and year with "-", "/" or "." between them, a year of four
/// digits or of two, of which 00 to 29 are 2000 to 2029 and 30 to 99 are 1930 to 1999; nullopt for
/// anything else.
[[nodiscard]] std::optional<std::chrono::year_month_day> ParseDate(std::string_view text);

/// Half hours as hours with a sign and one decimal: the format "+00.0;-00.0", so 3 is "+01.5".
[[nodiscard]] std::string SignedHours(int half_hours);

/// The share of `part` in `whole` as a whole percentage, halves rounded away from zero: the format
/// "0 %". "0 %" for a whole of 0.
[[nodiscard]] std::string Percent(int part, int whole);

/// The decimal number that the whole text is, with or without a sign, a "." and decimals; nullopt
/// for anything else.
[[nodiscard]] std::optional<double> ParseNumber(std::string_view text);

/// The number that a text begins with, behind any blanks, as far as its digits, sign and one point
/// go; 0 if there is none. What follows is not looked at.
[[nodiscard]] double LeadingNumber(std::string_view text);

/// As `ParseNumber`, for a 32-bit float, which a frequency is: computed in 64 bits and narrowed
/// once; nullopt also beyond its range.
[[nodiscard]] std::optional<float> ParseFloat(std::string_view text);

/// The formats "000.0", "000.000" and "000" of frequencies: at least `width` digits before the
/// point, filled with "0", and exactly `decimals` behind it; no point for 0. It is the shortest
/// decimal number that stands for `value` that is rounded, halves away from zero.
[[nodiscard]] std::string FixedPoint(float value, int width, int decimals);

/// How the file writes a switch: "On" or "Off". Read, "on" in any case is true and all else false.
[[nodiscard]] std::string_view OnOff(bool on);
[[nodiscard]] bool IsOn(std::string_view text);

/// `text` in exactly `width` bytes: cut, or filled with blanks, on the right.
[[nodiscard]] std::string Padded(std::string_view text, std::size_t width);

/// `text` without the blanks around it.
[[nodiscard]] std::string_view WithoutBlanks(std::string_view text);

/// ASCII letters in upper case.
[[nodiscard]] std::string UpperCase(std::string_view text);

/// `value` as an `Int`; nullopt if it does not fit.
template <std::integral Int>
[[nodiscard]] constexpr std::optional<Int> Narrow(std::int32_t value) {
  if (value < std::numeric_limits<Int>::min() || value > std::numeric_limits<Int>::max()) {
    return std::nullopt;
  }
  return static_cast<Int>(value);
}

}  // namespace corvalis
