#pragma once

#include <string>
#include <string_view>

namespace corvalis::send {

/// What is done to a text that the line can't carry as it is. Without these it is refused.
struct TextRules {
  bool replace = false;  ///< a character that the line lacks becomes its nearest plain letter
  bool cut = false;      ///< what is too long is cut, at a blank where there is one
};

/// A text as the line carries it, one byte of Windows-1252 a character, or why it can't.
struct CarriedText {
  std::string bytes;
  std::string error;  ///< in UTF-8; empty if `bytes` is good
};

/// `utf8` for an item of `width` characters. Accents that are characters of their own join their
/// letter first. Under `replace` a byte that is no UTF-8 is taken for one of Windows-1252, and what
/// has no plain letter near becomes "?"; without it the error tells the character and its place.
[[nodiscard]] CarriedText Carry(std::string_view utf8, int width, TextRules rules = {});

}  // namespace corvalis::send
