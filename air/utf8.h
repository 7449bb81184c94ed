#pragma once

#include <string>
#include <string_view>

namespace corvalis::air {

/// Texts in UTF-8, character by character.

/// Appends a character from U+0000 to U+FFFF.
void AppendUtf8(std::string& text, char32_t character);
/// The first character of a text that is not empty; its bytes are taken off the text. U+FFFD for
/// what is no UTF-8.
[[nodiscard]] char32_t TakeUtf8(std::string_view& text);

}  // namespace corvalis::air
