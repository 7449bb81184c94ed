#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "config/conversions.h"

namespace corvalis {

/// What stands between the fields of one value of the file.
inline constexpr std::string_view kFieldSeparator = ";";

/// Writes a value of several fields.
class JoinedWriter {
 public:
  JoinedWriter& Add(std::string_view field);
  /// At least `width` decimal digits.
  JoinedWriter& Number(int value, int width) { return Add(Digits(value, width)); }
  /// A frequency; see `FixedPoint`.
  JoinedWriter& Real(float value, int width, int decimals) {
    return Add(FixedPoint(value, width, decimals));
  }
  JoinedWriter& Switch(bool on) { return Add(OnOff(on)); }
  /// A text that may hold any bytes: those that would end the line of the file become blanks.
  JoinedWriter& Text(std::string_view text);

  /// The fields with separators between them, or one behind each.
  [[nodiscard]] const std::string& Separated() const { return text_; }
  [[nodiscard]] std::string Ended() const { return text_ + std::string(kFieldSeparator); }

 private:
  std::string text_;
  bool first_ = true;
};

/// Reads the fields of a value one after the other. A field that can't be converted leaves its
/// target as it was; one that is missing is empty. Blanks around a number don't count.
class JoinedReader {
 public:
  /// `text` is not copied.
  explicit JoinedReader(std::string_view text) : rest_(text) {}
  explicit JoinedReader(const char* text) : JoinedReader(std::string_view(text)) {}
  explicit JoinedReader(std::string&& text) = delete;

  /// The next field as it stands.
  std::string_view Next();
  JoinedReader& Text(std::string& target);
  /// A decimal number within the limits of `Int`.
  template <std::integral Int>
  JoinedReader& Number(Int& target) {
    if (const auto value = ParseDecimal<std::int32_t>(WithoutBlanks(Next()))) {
      target = Narrow<Int>(*value).value_or(target);
    }
    return *this;
  }
  /// A hexadecimal number within the limits of `Int`; letters are -1. An empty field leaves its
  /// target.
  template <std::integral Int>
  JoinedReader& Hex(Int& target) {
    const std::string_view field = WithoutBlanks(Next());
    if (!field.empty()) target = Narrow<Int>(HexToLong(field)).value_or(target);
    return *this;
  }
  JoinedReader& Real(float& target);
  /// True for "on" in whatever case.
  JoinedReader& Switch(bool& target);
  /// True for "On" alone.
  JoinedReader& ExactSwitch(bool& target);

 private:
  std::optional<std::string_view> rest_;  // nothing behind the last field
};

}  // namespace corvalis
