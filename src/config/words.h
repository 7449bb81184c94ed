#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace corvalis {

/// A text that the program adds of its own, in the language of this moment: what the section
/// "Words" of the language file has under the English text; that text itself where it has nothing.
/// In Windows-1252. A key of that file has neither "=" nor a line end nor blanks around it, and is
/// found without regard to ASCII case: nor does any of our texts.
///
/// A text is looked up whole, never put together of words: other languages have another order.
[[nodiscard]] std::string Word(std::string_view english);

/// The same with values in it, the first in place of "%1", and so on up to "%9". They stand as they
/// are given.
[[nodiscard]] std::string Word(std::string_view english, std::initializer_list<std::string> values);

/// Marks a text of ours in a table, that `Word` looks up when it is shown.
constexpr const char* LaterWord(const char* english) { return english; }

/// The language of the texts, "de" or "pt_BR", which the same section has under `kLanguageKey`;
/// English, with the week of Europe, where it says nothing.
[[nodiscard]] std::string LanguageCode();
inline constexpr const char* kLanguageKey = "Locale";

}  // namespace corvalis
