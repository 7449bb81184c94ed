#include "config/language_data.h"

namespace corvalis {

LanguageData* languageData = nullptr;

LanguageData::LanguageData() { InitLanguage(); }

void LanguageData::InitLanguage() {
#define CORVALIS_TEXT(section, key, getter, preset) getter##_ = preset;
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
}

}  // namespace corvalis
