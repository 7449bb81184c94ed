#include "config/language_data.h"

#include <filesystem>
#include <system_error>

#include "config/config_data.h"
#include "config/windows_1252.h"
#include "platform/platform.h"
#include "platform/profile_document.h"

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

std::string LoadText(const Source& source, const std::string& file) {
  if (file.empty()) return source.preset;
  ProfileStore& profiles = *Machine().profiles;
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

// The record may come from anywhere, so it names a file of its own folder and no other: this
// program writes into it.
std::string LanguageFile() {
  const std::string& name = configData->LanguageFileName();
  if (name.find('/') != std::string::npos) return {};
  const std::string path = configData->Path() + "/" + name;
  // A record of other systems has the name in their code page.
  std::error_code error;
  const std::string in_utf8 = configData->Path() + "/" + Utf8From1252(name);
  return !std::filesystem::exists(path, error) && std::filesystem::exists(in_utf8, error) ? in_utf8
                                                                                          : path;
}

LanguageData::LanguageData() { InitLanguage(); }

void LanguageData::InitLanguage() {
  const ProfileStore::Series series(*Machine().profiles);
  const std::string file = LanguageFile();
  words_ = Machine().profiles->ReadSection(file, "Words");
  for (std::size_t i = 0; i < kTextCount; ++i) texts_[i] = LoadText(kSources[i], file);
}

std::string_view LanguageData::Word(std::string_view english) const {
  const auto found = words_.find(ProfileDocument::Folded(english));
  return found == words_.end() ? std::string_view() : found->second;
}

}  // namespace corvalis
