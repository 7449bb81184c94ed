#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvalis::air {

/// The characters of radios (basic character set of the standard): a byte on the air each.

/// Bytes that are no character but say something of the text around them. A radio shows a blank, or
/// for the hyphen nothing.
inline constexpr std::uint8_t kLineBreak = 0x0A;
inline constexpr std::uint8_t kEndOfHeadline = 0x0B;
inline constexpr std::uint8_t kEndOfText = 0x0D;
inline constexpr std::uint8_t kSoftHyphen = 0x1F;

/// What a radio shows for a byte, in Unicode; a blank for any that has no character, and the soft
/// hyphen for its own.
[[nodiscard]] char32_t RadioCharacter(std::uint8_t byte);
/// The same of a text, in UTF-8.
[[nodiscard]] std::string RadioText(std::span<const std::uint8_t> bytes);

/// The byte for a character of Unicode; nullopt if radios do not have it.
[[nodiscard]] std::optional<std::uint8_t> RadioByte(char32_t character);
/// The same, and for a character that radios do not have the plain one that comes nearest: the
/// letter without its accent, the straight quotation mark; "?" where there is none.
[[nodiscard]] std::uint8_t PlainRadioByte(char32_t character);
/// That plain one, in ASCII, also for a character that radios have.
[[nodiscard]] char PlainCharacterFor(char32_t character);
/// The bytes of a text in UTF-8, one for each character. What is no UTF-8 becomes "?".
[[nodiscard]] std::vector<std::uint8_t> RadioBytes(std::string_view utf8);

}  // namespace corvalis::air
