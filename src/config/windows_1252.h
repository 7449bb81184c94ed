#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvalis {

/// Bytes 0x80 to 0x9F of Windows-1252, from the published mapping of the code page to Unicode. The
/// five that it leaves undefined are the control characters of the same number; all other bytes are
/// the characters of their own number.
inline constexpr int kFirstSpecial1252 = 0x80;
inline constexpr std::array<char16_t, 32> kSpecial1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The character of a byte, in Unicode.
[[nodiscard]] char32_t CharacterOf1252(std::uint8_t byte);

/// A text in Windows-1252, in UTF-8.
[[nodiscard]] std::string Utf8From1252(std::string_view text);

}  // namespace corvalis
