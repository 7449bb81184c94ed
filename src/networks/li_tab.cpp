#include "networks/li_tab.h"

#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "networks/li_data.h"
#include "networks/network_boxes.h"

namespace corvalis {

namespace {

constexpr int kLsnDigits = 3;

}  // namespace

LiTab::LiTab(Window& window)
    : window_(window),
      buttons_(
          window,
          {.read_one = &ReadLiCommand, .send_one = &SendLiCommand, .burst = &SendLiBurstCommand},
          {.pause_burst = 0.2F, .extra_passes = 1},
          {OneItem({.read = [](int /*item*/) { liData->GetOneRds(); },
                    .send = [](int /*item*/) { liData->SetOneRds(); },
                    .refresh = [this] { RefreshLiTab(); }})}) {
  // To set them from the data stores what is there already.
  LiLaCheck.Click = [this] { liData->SetLa(LiLaCheck.Checked()); };
  LiEgiCheck.Click = [this] { liData->SetEgi(LiEgiCheck.Checked()); };
  LiILCheck.Click = [this] { liData->SetIl(LiILCheck.Checked()); };
  HoldHex(LiLsnText, kLsnDigits,
          [](std::int32_t value) { liData->SetLsn(static_cast<std::int16_t>(value)); });
}

void LiTab::RefreshLiTab() {
  LiLaCheck.SetChecked(liData->La());
  LiEgiCheck.SetChecked(liData->Egi());
  LiILCheck.SetChecked(liData->Il());
  LiLsnText.SetText(HexDigits(liData->Lsn(), 1, kLsnDigits));
}

void LiTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  LiLaCheck.SetCaption(texts.LiLaKey());
  LiEgiCheck.SetCaption(texts.LiEgiKey());
  LiILCheck.SetCaption(texts.LiIlKey());
  LiLsnLabel.SetCaption(texts.LiLsnKey());
  ReadLiCommand.SetTexts(texts.LiReadKey(), texts.LiReadTip());
  SendLiCommand.SetTexts(texts.LiSendKey(), texts.LiSendTip());
  SendLiBurstCommand.SetTexts(texts.LiSendBurstKey(), texts.LiSendBurstTip());
}

void LiTab::Open() {
  buttons_.Show();
  RefreshLiTab();
}

}  // namespace corvalis
