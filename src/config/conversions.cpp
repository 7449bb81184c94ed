#include "config/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace corvalis {

namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

}  // namespace

std::int32_t HexToLong(std::string_view text) {
  if (text.empty()) return -1;
  constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
  std::int64_t value = 0;
  for (const char c : text) {
    const int digit = HexDigit(c);
    if (digit < 0) return -1;
    value = std::min(value * 16 + digit, kMax);
  }
  return static_cast<std::int32_t>(value);
}

std::string LongToHex(std::int32_t value, std::int16_t width) {
  std::string text;
  for (auto rest = static_cast<std::uint32_t>(value); rest != 0; rest /= 16) {
    text.insert(text.begin(), kHexDigits[rest % 16]);
  }
  const auto wanted = static_cast<std::size_t>(std::max<std::int16_t>(width, 0));
  if (text.size() < wanted) text.insert(0, wanted - text.size(), '0');
  return text;
}

std::string HexDigits(std::int32_t value, int least, int most) {
  return LongToHex(value, static_cast<std::int16_t>(least))
      .substr(0, static_cast<std::size_t>(most));
}

std::string BitsToHex(std::string_view bits, std::int16_t width) {
  std::string padded((4 - bits.size() % 4) % 4, '0');
  padded += bits;
  std::string text;
  int groups = 0;
  for (std::size_t i = 0; i < padded.size(); i += 4, ++groups) {
    const std::string group = padded.substr(i, 4);
    if (group.find_first_not_of("01") != std::string::npos) continue;
    unsigned value = 0;
    for (const char bit : group) value = value * 2 + (bit == '1' ? 1 : 0);
    text += kHexDigits[value];
  }
  for (; groups < width; ++groups) text.insert(text.begin(), '0');
  return text;
}

std::string HexToBits(std::string_view hex, std::int16_t width) {
  std::string bits;
  int count = 0;
  for (const char c : hex) {
    ++count;
    const std::size_t digit = kHexDigits.find(c);
    if (digit == std::string_view::npos) continue;
    for (unsigned mask = 8; mask != 0; mask /= 2) bits += (digit & mask) != 0 ? '1' : '0';
  }
  for (; 4 * count < width; ++count) bits.insert(bits.begin(), '0');
  return bits;
}

std::string PinCode(std::int16_t day, std::chrono::minutes time_of_day) {
  const auto minutes = static_cast<std::int32_t>(time_of_day.count());
  constexpr std::int32_t kBits = 0xFFFF;
  return LongToHex((day * 2048 + minutes / 60 * 64 + minutes % 60) & kBits, 4);
}

bool IsWholeNumber(std::string_view text) { return ParseDecimal<std::int16_t>(text).has_value(); }

std::int16_t PickListCount(std::int16_t first, std::int16_t second, std::int16_t fallback) {
  if (first > 0) return first;
  return second > 0 ? second : fallback;
}

std::string GetToken(std::string_view text, std::int16_t index, std::string_view separator) {
  if (index < 0) return {};
  for (;; --index) {
    const std::size_t end = separator.empty() ? std::string_view::npos : text.find(separator);
    if (index == 0) return std::string(text.substr(0, end));
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end + separator.size());
  }
}

template <std::signed_integral Int>
std::optional<Int> ParseDecimal(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  Int value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}
template std::optional<std::int16_t> ParseDecimal(std::string_view text);
template std::optional<std::int32_t> ParseDecimal(std::string_view text);

std::string Digits(int value, int width) {
  const std::string digits = std::to_string(std::abs(static_cast<long>(value)));
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  std::string text(value < 0 ? 1 : 0, '-');
  if (digits.size() < wanted) text.append(wanted - digits.size(), '0');
  return text += digits;
}

namespace {

// A number of at least one digit and at most so many, without a sign.
std::optional<int> DigitsOnly(std::string_view text, std::size_t most) {
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.empty() || text.size() > most || !std::all_of(text.begin(), text.end(), is_digit)) {
    return std::nullopt;
  }
  return ParseDecimal<std::int32_t>(text);
}

}  // namespace

std::optional<std::chrono::minutes> ParseTime(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto hour = DigitsOnly(text.substr(0, colon), 2);
  const auto minute = DigitsOnly(text.substr(colon + 1), 2);
  if (!hour || !minute || *hour > 23 || *minute > 59) return std::nullopt;
  return std::chrono::hours(*hour) + std::chrono::minutes(*minute);
}

std::string WithColons(std::string text) {
  std::replace(text.begin(), text.end(), '.', ':');
  return text;
}

std::string TimeText(std::chrono::minutes time_of_day) {
  const auto minutes = static_cast<int>(time_of_day.count());
  return Digits(minutes / 60, 2) + ":" + Digits(minutes % 60, 2);
}

std::optional<std::chrono::year_month_day> ParseDate(std::string_view text) {
  constexpr std::string_view kSeparators = "-/.";
  const std::size_t first = text.find_first_of(kSeparators);
  if (first == std::string_view::npos) return std::nullopt;
  const std::size_t second = text.find_first_of(kSeparators, first + 1);
  if (second == std::string_view::npos) return std::nullopt;
  const std::string_view year_digits = text.substr(second + 1);
  const auto day = DigitsOnly(text.substr(0, first), 2);
  const auto month = DigitsOnly(text.substr(first + 1, second - first - 1), 2);
  auto year = DigitsOnly(year_digits, 4);
  if (!day || !month || !year || year_digits.size() == 3) return std::nullopt;
  if (year_digits.size() < 3) year = *year + (*year < 30 ? 2000 : 1900);
  const std::chrono::year_month_day date{std::chrono::year(*year),
                                         std::chrono::month(static_cast<unsigned>(*month)),
                                         std::chrono::day(static_cast<unsigned>(*day))};
  if (!date.ok()) return std::nullopt;
  return date;
}

std::string SignedHours(int half_hours) {
  const int size = std::abs(half_hours);
  return (half_hours < 0 ? "-" : "+") + Digits(size / 2, 2) + (size % 2 == 0 ? ".0" : ".5");
}

std::string Percent(int part, int whole) {
  if (whole == 0) return "0 %";
  return std::to_string(std::lround(100.0 * part / whole)) + " %";
}

std::optional<double> ParseNumber(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
  if (error != std::errc() || stop != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

double LeadingNumber(std::string_view text) {
  std::string number;
  bool point = false;
  for (const char c : WithoutBlanks(text)) {
    const bool digit = c >= '0' && c <= '9';
    const bool sign = number.empty() && (c == '-' || c == '+');
    if (!digit && !sign && (c != '.' || point)) break;
    point = point || c == '.';
    number += c;
  }
  while (number.ends_with('.')) number.pop_back();
  if (number.starts_with('.')) number.insert(0, "0");
  return ParseNumber(number).value_or(0);
}

std::optional<float> ParseFloat(std::string_view text) {
  const auto value = ParseNumber(text);
  if (!value || std::abs(*value) > std::numeric_limits<float>::max()) return std::nullopt;
  return static_cast<float>(*value);
}

std::string FixedPoint(float value, int width, int decimals) {
  std::array<char, 64> buffer{};
  char* const begin = buffer.data();
  char* const end = begin + buffer.size();
  const char* stop = std::to_chars(begin, end, std::abs(value)).ptr;
  double size = 0;
  std::from_chars(begin, stop, size);
  // More than a decimal half is off in binary, and less than the last digit of a float.
  constexpr double kNoHalves = 1e7;
  size += std::min(size, kNoHalves) * 1e-12;
  stop = std::to_chars(begin, end, size, std::chars_format::fixed, decimals).ptr;
  std::string text(buffer.data(), static_cast<std::size_t>(stop - begin));
  const std::size_t whole = std::min(text.find('.'), text.size());
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  if (whole < wanted) text.insert(0, wanted - whole, '0');
  const bool zero = text.find_first_not_of("0.") == std::string::npos;
  return value < 0 && !zero ? "-" + text : text;
}

std::string_view OnOff(bool on) { return on ? "On" : "Off"; }

bool IsOn(std::string_view text) { return UpperCase(text) == "ON"; }

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text.substr(0, width));
  padded.resize(width, ' ');
  return padded;
}

std::string_view WithoutBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

}  // namespace corvalis
