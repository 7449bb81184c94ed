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

void Globals::CreateDataClasses() {
  groups_data_ = std::make_unique<GroupsData>();
  groupsData = groups_data_.get();
}

void Globals::Release() {
  groupsData = nullptr;
  groups_data_.reset();
  languageData = nullptr;
  language_data_.reset();
}

void Globals::LoadForOpen() { groupsData->GetIni(); }

void Globals::LoadForNew() {
  // The group sequence has two places in this order.
  groupsData->GetIni();
  groupsData->GetIni();
}

void Globals::LoadLimits() {}

void Globals::Store() {
  configData->SetIni();
  groupsData->SetIni();
}

}  // namespace corvalis
