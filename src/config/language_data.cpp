#include "config/language_data.h"

#include "config/config_data.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

struct Source {
  const char* section;
  const char* key;
  const char* preset;
};

// In the order of loading, which is the order of a file that this program has written.
constexpr Source kSources[] = {
#define CORVALIS_TEXT(section, key, getter, preset) {section, key, preset},
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
};

std::string FileName() { return configData->Path() + "/" + configData->LanguageFileName(); }

std::string LoadText(const Source& source) {
  ProfileStore& profiles = *Machine().profiles;
  const std::string file = FileName();
  std::string text = profiles.Read(file, source.section, source.key);
  if (text.empty()) {
    text = source.preset;
    profiles.Write(file, source.section, source.key, text);
  }
  Machine().pump->RunPending();
  return text;
}

}  // namespace

LanguageData* languageData = nullptr;

LanguageData::LanguageData() { InitLanguage(); }

void LanguageData::InitLanguage() {
  const ProfileStore::Series series(*Machine().profiles);
  for (std::size_t i = 0; i < kTextCount; ++i) texts_[i] = LoadText(kSources[i]);
}

}  // namespace corvalis
