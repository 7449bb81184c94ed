#pragma once

#include <string>

namespace corvalis {

/// Every caption and tool-tip of every screen, one getter a text.
class LanguageData {
 public:
  /// Loads all texts, as `InitLanguage` does.
  LanguageData();

  /// Loads all texts again. Screens that are open are not told.
  void InitLanguage();

#define CORVALIS_TEXT(section, key, getter, preset) \
  [[nodiscard]] const std::string& getter() const { return getter##_; }
#include "config/language_texts.inc"
#undef CORVALIS_TEXT

 private:
#define CORVALIS_TEXT(section, key, getter, preset) std::string getter##_;
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
};

/// The texts; null before `MainForm` has loaded its captions.
extern LanguageData* languageData;

}  // namespace corvalis
