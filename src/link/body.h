#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace corvalis {

/// The bytes of a text that is written or read as a part of a body.
[[nodiscard]] std::span<std::uint8_t> BytesOf(std::string& text);
[[nodiscard]] std::span<const std::uint8_t> BytesOf(const std::string& text);

/// Writes a frame's body field by field, from its first byte on. Nothing is range-checked: what
/// does not fit its digits goes out as it comes, and the Coder is expected to refuse it. A byte
/// beyond the body, which would land on the frame's end, is a bug: `std::out_of_range`.
class BodyWriter {
 public:
  explicit BodyWriter(std::span<std::uint8_t> body) : rest_(body) {}

  /// "1" for true, "0" for false.
  BodyWriter& Flag(bool value);
  /// So many upper-case hexadecimal digits: see `HexDigits`.
  BodyWriter& Hex(std::int32_t value, int digits);
  /// One decimal digit, 0x30 + value.
  BodyWriter& Dec1(std::int32_t value);
  /// Two decimal digits: 0x30 + value / 10, 0x30 + value mod 10.
  BodyWriter& Dec2(std::int32_t value);
  BodyWriter& Raw(std::span<const std::uint8_t> bytes);
  /// The bytes of a text, cut, or filled with blanks, to `width`.
  BodyWriter& Text(std::string_view text, int width);
  BodyWriter& Byte(std::uint8_t byte);

 private:
  std::span<std::uint8_t> rest_;
};

/// Reads a body field by field. A byte beyond the body is a bug: `std::out_of_range`.
class BodyReader {
 public:
  explicit BodyReader(std::span<const std::uint8_t> body) : rest_(body) {}

  /// True only for "1".
  bool Flag() { return Byte() == '1'; }
  /// The value of that many hexadecimal digits; -1 if one of them isn't any.
  std::int32_t Hex(int digits);
  /// byte - 0x30.
  std::int32_t Dec1() { return Byte() - '0'; }
  std::int32_t Dec2();
  std::span<const std::uint8_t> Raw(int bytes);
  std::string Text(int bytes);
  std::uint8_t Byte() { return Raw(1).front(); }

 private:
  std::span<const std::uint8_t> rest_;
};

}  // namespace corvalis
