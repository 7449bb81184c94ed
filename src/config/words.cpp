#include "config/words.h"

#include <cstddef>

#include "config/language_data.h"

namespace corvalis {

std::string Word(std::string_view english) {
  const std::string_view word = languageData == nullptr ? "" : languageData->Word(english);
  return std::string(word.empty() ? english : word);
}

std::string Word(std::string_view english, std::initializer_list<std::string> values) {
  const std::string pattern = Word(english);
  std::string text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const std::size_t place =
        i + 1 < pattern.size() ? static_cast<unsigned char>(pattern[i + 1]) - '1' : values.size();
    if (pattern[i] == '%' && place < values.size()) {
      text += values.begin()[place];
      ++i;
    } else {
      text += pattern[i];
    }
  }
  return text;
}

std::string LanguageCode() {
  const std::string_view code = languageData == nullptr ? "" : languageData->Word(kLanguageKey);
  return std::string(code.empty() ? "en_GB" : code);
}

}  // namespace corvalis
