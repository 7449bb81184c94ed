#include "app/globals.h"

#include "app/single_instance.h"
#include "config/config_data.h"
#include "config/language_data.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/li_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"
#include "platform/platform.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"
#include "station/groups_data.h"

namespace corvalis {

namespace {

// A class that joins gets its place in each of these orders, which differ.
// Creation, and release. The names of the types stand in no other order.
using OfCreation =
    SingleInstances<afAData, afBData, psnData, psnPageData, rtData, pinData, tdc0Data, tdcData,
                    groupsData, ihData, eonData, liData, ptynData, tmcData>;
using OfOpen = SingleInstances<afAData, afBData, psnData, psnPageData, rtData, pinData, tdc0Data,
                               tdcData, groupsData, ihData, eonData, liData, tmcData>;
// The group sequence has two places here.
using OfNew = SingleInstances<psnData, psnPageData, rtData, pinData, afAData, afBData, groupsData,
                              tdc0Data, tdcData, groupsData, ihData, eonData, liData, tmcData>;

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

void Globals::LoadLimits() {
  afBData->GetIni();
  if (configData->EonEnable()) eonData->GetIni();
  ihData->GetIni();
  pinData->GetIni();
  if (configData->PsnPagesEnable()) {
    psnPageData->GetIni();
  } else {
    psnData->GetIni();
  }
  rtData->GetIni();
  if (configData->TmcEnable()) tmcData->GetIni();
}

void Globals::Store() {
  configData->SetIni();
  SingleInstances<afAData, afBData>::SetIni();
  // The two share a section, and only one of them is written.
  if (configData->PsnPagesEnable()) {
    psnPageData->SetIni();
  } else {
    psnData->SetIni();
  }
  SingleInstances<rtData, pinData, tdc0Data, tdcData, groupsData, ihData, eonData, liData,
                  tmcData>::SetIni();
}

std::string Globals::WouldStore() {
  const ProfileStore::Catch caught(*Machine().profiles);
  Store();
  return caught.Text();
}

}  // namespace corvalis
