#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvalis::send {

/// The words of a line, taken apart as a shell does it: blanks and tabs part them; '...' keeps
/// everything, "..." everything but \" and \\; a backslash keeps the character behind it; a # that
/// begins a word ends the line. Nullopt if a quote is never closed, or nothing follows a backslash.
[[nodiscard]] std::optional<std::vector<std::string>> SplitWords(std::string_view line);

/// `word` in quotes, so that `SplitWords` gives it back as one word.
[[nodiscard]] std::string Quoted(std::string_view word);

}  // namespace corvalis::send
