#pragma once

#include <array>
#include <string_view>

namespace corvalis::air {

/// The characters of the bytes from 20 on, in Unicode: basic character set of EN 50067, annex E.
/// 7F and FF have none.
inline constexpr int kFirstRadioCharacter = 0x20;
// clang-format off
inline constexpr std::array<char16_t, 224> kRadioCharacters = {
    // 20
    0x0020, 0x0021, 0x0022, 0x0023, 0x00A4, 0x0025, 0x0026, 0x0027,
    0x0028, 0x0029, 0x002A, 0x002B, 0x002C, 0x002D, 0x002E, 0x002F,
    // 30
    0x0030, 0x0031, 0x0032, 0x0033, 0x0034, 0x0035, 0x0036, 0x0037,
    0x0038, 0x0039, 0x003A, 0x003B, 0x003C, 0x003D, 0x003E, 0x003F,
    // 40
    0x0040, 0x0041, 0x0042, 0x0043, 0x0044, 0x0045, 0x0046, 0x0047,
    0x0048, 0x0049, 0x004A, 0x004B, 0x004C, 0x004D, 0x004E, 0x004F,
    // 50
    0x0050, 0x0051, 0x0052, 0x0053, 0x0054, 0x0055, 0x0056, 0x0057,
    0x0058, 0x0059, 0x005A, 0x005B, 0x005C, 0x005D, 0x2015, 0x005F,
    // 60
    0x2016, 0x0061, 0x0062, 0x0063, 0x0064, 0x0065, 0x0066, 0x0067,
    0x0068, 0x0069, 0x006A, 0x006B, 0x006C, 0x006D, 0x006E, 0x006F,
    // 70
    0x0070, 0x0071, 0x0072, 0x0073, 0x0074, 0x0075, 0x0076, 0x0077,
    0x0078, 0x0079, 0x007A, 0x007B, 0x007C, 0x007D, 0x00AF, 0x0020,
    // 80
    0x00E1, 0x00E0, 0x00E9, 0x00E8, 0x00ED, 0x00EC, 0x00F3, 0x00F2,
    0x00FA, 0x00F9, 0x00D1, 0x00C7, 0x015E, 0x00DF, 0x00A1, 0x0132,
    // 90
    0x00E2, 0x00E4, 0x00EA, 0x00EB, 0x00EE, 0x00EF, 0x00F4, 0x00F6,
    0x00FB, 0x00FC, 0x00F1, 0x00E7, 0x015F, 0x011F, 0x0131, 0x0133,
    // A0
    0x00AA, 0x03B1, 0x00A9, 0x2030, 0x011E, 0x011B, 0x0148, 0x0151,
    0x03C0, 0x20AC, 0x00A3, 0x0024, 0x2190, 0x2191, 0x2192, 0x2193,
    // B0
    0x00BA, 0x00B9, 0x00B2, 0x00B3, 0x00B1, 0x0130, 0x0144, 0x0171,
    0x00B5, 0x00BF, 0x00F7, 0x00B0, 0x00BC, 0x00BD, 0x00BE, 0x00A7,
    // C0
    0x00C1, 0x00C0, 0x00C9, 0x00C8, 0x00CD, 0x00CC, 0x00D3, 0x00D2,
    0x00DA, 0x00D9, 0x0158, 0x010C, 0x0160, 0x017D, 0x00D0, 0x013F,
    // D0
    0x00C2, 0x00C4, 0x00CA, 0x00CB, 0x00CE, 0x00CF, 0x00D4, 0x00D6,
    0x00DB, 0x00DC, 0x0159, 0x010D, 0x0161, 0x017E, 0x0111, 0x0140,
    // E0
    0x00C3, 0x00C5, 0x00C6, 0x0152, 0x0177, 0x00DD, 0x00D5, 0x00D8,
    0x00DE, 0x014A, 0x0154, 0x0106, 0x015A, 0x0179, 0x0166, 0x00F0,
    // F0
    0x00E3, 0x00E5, 0x00E6, 0x0153, 0x0175, 0x00FD, 0x00F5, 0x00F8,
    0x00FE, 0x014B, 0x0155, 0x0107, 0x015B, 0x017A, 0x0167, 0x0020,
};
// clang-format on

/// What the letters from U+0100 to U+017F are without their accents and the like, by the names that
/// Unicode gives them. Letters that radios have are among them and not looked up here.
inline constexpr int kFirstAccented = 0x100;
inline constexpr std::string_view kAccentless =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlL"
    "lLlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";

/// Other characters, most of which radios do not have, and the one that comes nearest, in ASCII.
struct PlainCharacter {
  char16_t character;
  char plain;
};
inline constexpr std::array kPlainCharacters = {
    // Of ASCII itself, where radios have something else in the place.
    PlainCharacter{u'^', '\''},
    PlainCharacter{u'`', '\''},
    PlainCharacter{u'~', '-'},
    // Latin-1 and what Windows-1252 has beside it.
    PlainCharacter{0x00A0, ' '},   // no-break space
    PlainCharacter{0x00A2, 'c'},   // cent
    PlainCharacter{0x00A5, 'Y'},   // yen
    PlainCharacter{0x00A6, '|'},   // broken bar
    PlainCharacter{0x00A8, '"'},   // diaeresis
    PlainCharacter{0x00AB, '"'},   // angle quotation marks
    PlainCharacter{0x00AC, '-'},   // not
    PlainCharacter{0x00AE, 'R'},   // registered
    PlainCharacter{0x00B4, '\''},  // acute accent
    PlainCharacter{0x00B6, 'P'},   // pilcrow
    PlainCharacter{0x00B7, '.'},   // middle dot
    PlainCharacter{0x00B8, ','},   // cedilla
    PlainCharacter{0x00BB, '"'},
    PlainCharacter{0x00D7, 'x'},  // multiplication
    PlainCharacter{0x00FF, 'y'},
    PlainCharacter{0x0192, 'f'},
    PlainCharacter{0x0218, 'S'},  // comma below
    PlainCharacter{0x0219, 's'},
    PlainCharacter{0x021A, 'T'},
    PlainCharacter{0x021B, 't'},
    PlainCharacter{0x02C6, '\''},  // circumflex
    PlainCharacter{0x02DC, '-'},   // small tilde
    PlainCharacter{0x1E9E, 'S'},   // capital sharp s
    PlainCharacter{0x2010, '-'},   // hyphens and dashes
    PlainCharacter{0x2011, '-'},
    PlainCharacter{0x2012, '-'},
    PlainCharacter{0x2013, '-'},
    PlainCharacter{0x2014, '-'},
    PlainCharacter{0x2018, '\''},  // quotation marks
    PlainCharacter{0x2019, '\''},
    PlainCharacter{0x201A, '\''},
    PlainCharacter{0x201B, '\''},
    PlainCharacter{0x201C, '"'},
    PlainCharacter{0x201D, '"'},
    PlainCharacter{0x201E, '"'},
    PlainCharacter{0x2020, '+'},  // daggers
    PlainCharacter{0x2021, '+'},
    PlainCharacter{0x2022, '*'},  // bullet
    PlainCharacter{0x2026, '.'},  // ellipsis
    PlainCharacter{0x202F, ' '},  // narrow no-break space
    PlainCharacter{0x2032, '\''},
    PlainCharacter{0x2033, '"'},
    PlainCharacter{0x2039, '\''},  // angle quotation marks
    PlainCharacter{0x203A, '\''},
    PlainCharacter{0x2122, 'T'},  // trade mark
    PlainCharacter{0x2212, '-'},  // minus
    // What radios have, and Windows-1252 does not.
    PlainCharacter{0x03B1, 'a'},
    PlainCharacter{0x03C0, 'p'},  // alpha, pi
    PlainCharacter{0x2015, '-'},
    PlainCharacter{0x2016, '|'},  // bar, double line
    PlainCharacter{0x2190, '<'},
    PlainCharacter{0x2191, '^'},  // arrows
    PlainCharacter{0x2192, '>'},
    PlainCharacter{0x2193, 'v'},
};

}  // namespace corvalis::air
