#include "app/globals.h"

namespace corvalis {

Globals::~Globals() {
  Release();
  configData = nullptr;
}

void Globals::CreateConfigData() {
  config_data_ = std::make_unique<ConfigData>();
  configData = config_data_.get();
}

void Globals::CreateLanguageData() {
  language_data_ = std::make_unique<LanguageData>();
  languageData = language_data_.get();
}

void Globals::CreateDataClasses() {}

void Globals::Release() {
  languageData = nullptr;
  language_data_.reset();
}

void Globals::LoadForOpen() {}

void Globals::LoadForNew() {}

void Globals::Store() { configData->SetIni(); }

}  // namespace corvalis
