#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace corvalis {

/// Every caption and tool-tip of every screen, one getter a text, in Windows-1252. What the program
/// says beyond these is in the same file, see config/words.h.
///
/// They come from the language file that the station record names, in the folder that the record
/// has at that moment. A text that the file lacks is the built-in English one, which is then
/// written into the file: a missing file grows into a full template for translators. A record that
/// names a file outside the folder ("/" in the name) gets the built-in texts, and nothing is
/// written.
class LanguageData {
 public:
  /// Loads all texts, as `InitLanguage` does. The station record must exist.
  LanguageData();

  /// Loads all texts again. Screens that are open are not told. Pending events run after each
  /// text. Nothing fails: a file that can't be written stays as it is.
  void InitLanguage();

  /// What the section "Words" of the file had under this key at the last loading; empty if nothing.
  /// That section is never written.
  [[nodiscard]] std::string_view Word(std::string_view english) const;

#define CORVALIS_TEXT(section, key, getter, preset) \
  [[nodiscard]] const std::string& getter() const { return texts_[k##getter]; }
#include "config/language_texts.inc"
#undef CORVALIS_TEXT

 private:
  enum Index : std::size_t {
#define CORVALIS_TEXT(section, key, getter, preset) k##getter,
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
    kTextCount
  };

  std::array<std::string, kTextCount> texts_;
  std::unordered_map<std::string, std::string> words_;  // by the English text in small letters
};

/// The file that the texts are loaded from, as the station record names it at this moment; empty if
/// that names none of its own folder.
[[nodiscard]] std::string LanguageFile();

/// The texts; null before `MainForm` has loaded its captions.
extern LanguageData* languageData;

}  // namespace corvalis
