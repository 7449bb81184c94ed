#include "networks/tmc_system_tab.h"

#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "networks/tmc_data.h"

namespace corvalis {

TmcSystemTab::TmcSystemTab(Window& window)
    : window_(window),
      buttons_(window,
               {.read_one = &ReadTmcSystemCommand,
                .send_one = &SendTmcSystemCommand,
                .burst = &SendTmcSystemBurstCommand},
               {.pause_burst = 0.2F, .extra_passes = 1, .sends_one_way = false},
               {OneItem({.read = [](int /*item*/) { tmcData->GetOneSystemRds(); },
                         .send = [](int /*item*/) { tmcData->SetOneSystemRds(); },
                         .refresh = [this] { RefreshTmcSystemTab(); }})}) {
  LtnText.SetLocked(true);
  SidText.SetLocked(true);
  LtnVScroll.StepUp = [this] { StepLtn(1); };
  LtnVScroll.StepDown = [this] { StepLtn(-1); };
  SidVScroll.StepUp = [this] { StepSid(1); };
  SidVScroll.StepDown = [this] { StepSid(-1); };
  InternationalCheck.Click = [this] { tmcData->SetInternational(InternationalCheck.Checked()); };
  NationalCheck.Click = [this] { tmcData->SetNational(NationalCheck.Checked()); };
  RegionalCheck.Click = [this] { tmcData->SetRegional(RegionalCheck.Checked()); };
  UrbanCheck.Click = [this] { tmcData->SetUrban(UrbanCheck.Checked()); };
}

// The numbers go round: the data keeps 6 bits.
void TmcSystemTab::StepLtn(int by) {
  tmcData->SetLtn(tmcData->Ltn() + by);
  LtnText.SetText(Digits(tmcData->Ltn(), 1));
}

void TmcSystemTab::StepSid(int by) {
  tmcData->SetSid(tmcData->Sid() + by);
  SidText.SetText(Digits(tmcData->Sid(), 1));
}

void TmcSystemTab::RefreshTmcSystemTab() {
  LtnText.SetText(Digits(tmcData->Ltn(), 1));
  SidText.SetText(Digits(tmcData->Sid(), 1));
  InternationalCheck.SetChecked(tmcData->International());
  NationalCheck.SetChecked(tmcData->National());
  RegionalCheck.SetChecked(tmcData->Regional());
  UrbanCheck.SetChecked(tmcData->Urban());
}

void TmcSystemTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  InternationalCheck.SetCaption(texts.TmcSysInternationalKey());
  NationalCheck.SetCaption(texts.TmcSysNationalKey());
  RegionalCheck.SetCaption(texts.TmcSysRegionalKey());
  UrbanCheck.SetCaption(texts.TmcSysUrbanKey());
  LtnText.SetToolTip(texts.TmcSysLtnListNrTip());
  LtnVScroll.SetToolTip(texts.TmcSysLtnListNrTip());
  SidText.SetToolTip(texts.TmcSysSidListNrTip());
  SidVScroll.SetToolTip(texts.TmcSysSidListNrTip());
  ReadTmcSystemCommand.SetTexts(texts.TmcSysReadKey(), texts.TmcSysReadTip());
  SendTmcSystemCommand.SetTexts(texts.TmcSysSendKey(), texts.TmcSysSendTip());
  SendTmcSystemBurstCommand.SetTexts(texts.TmcSysSendBurstKey(), texts.TmcSysSendBurstTip());
}

void TmcSystemTab::Open() {
  buttons_.Show();
  RefreshTmcSystemTab();
}

}  // namespace corvalis
