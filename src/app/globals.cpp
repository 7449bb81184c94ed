#include "app/globals.h"

#include "app/single_instance.h"
#include "config/config_data.h"
#include "config/language_data.h"
#include "station/groups_data.h"

namespace corvalis {

namespace {

// A class that joins gets its place in each of these orders, which differ.
using OfCreation = SingleInstances<groupsData>;  // and of release
using OfOpen = SingleInstances<groupsData>;
using OfNew = SingleInstances<groupsData, groupsData>;  // the group sequence has two places

}  // namespace

Globals::~Globals() {
  Release();
  SingleInstance<configData>::Release();
}

void Globals::CreateConfigData() { SingleInstance<configData>::Create(); }

void Globals::CreateLanguageData() { SingleInstance<languageData>::Create(); }

void Globals::CreateDataClasses() { OfCreation::Create(); }

void Globals::Release() {
  OfCreation::Release();
  SingleInstance<languageData>::Release();
}

void Globals::LoadForOpen() { OfOpen::GetIni(); }

void Globals::LoadForNew() { OfNew::GetIni(); }

// None of the classes that ask the Coder for a size has joined yet.
void Globals::LoadLimits() {}

void Globals::Store() { SingleInstances<configData, groupsData>::SetIni(); }

}  // namespace corvalis
