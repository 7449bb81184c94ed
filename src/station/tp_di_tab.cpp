#include "station/tp_di_tab.h"

#include "config/config_data.h"
#include "config/language_data.h"
#include "link/serial_management.h"
#include "link/station_commands.h"
#include "link/transfer.h"

namespace corvalis {

namespace {

// Either box of a pair sets the field, and its partner to the contrary.
void Pair(CheckBox& true_box, CheckBox& false_box, void (ConfigData::*set)(bool)) {
  true_box.Click = [&true_box, &false_box, set] {
    (configData->*set)(true_box.Checked());
    false_box.SetChecked(!true_box.Checked());
  };
  false_box.Click = [&true_box, &false_box, set] {
    (configData->*set)(!false_box.Checked());
    true_box.SetChecked(!false_box.Checked());
  };
}

void Show(CheckBox& true_box, CheckBox& false_box, bool value) {
  true_box.SetChecked(value);
  false_box.SetChecked(!value);
}

}  // namespace

TpDiTab::TpDiTab(Window& owner) : window(owner) {
  Pair(Check1, Check10, &ConfigData::SetTp);
  Pair(Check2, Check3, &ConfigData::SetMono);
  Pair(Check4, Check5, &ConfigData::SetArtificialHead);
  Pair(Check6, Check7, &ConfigData::SetCompressed);
  Pair(Check8, Check9, &ConfigData::SetStaticPty);

  // The read keeps the address rule too, though it is out of sight where the rule would bite.
  Command3.Click = [this] { RunSend(window, [this] { Read(); }); };
  Command4.Click = [this] { RunSend(window, Send); };
  Command5.Click = [this] { RunSend(window, SendBurst); };
}

void TpDiTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  Check1.SetTexts(texts.TpDiTrafficProgramKey(), texts.TpDiTrafficProgramTip());
  Check10.SetTexts(texts.TpDiNoTrafficProgramKey(), texts.TpDiNoTrafficProgramTip());
  Check2.SetTexts(texts.TpDiMonoKey(), texts.TpDiMonoTip());
  Check3.SetTexts(texts.TpDiStereoKey(), texts.TpDiStereoTip());
  Check4.SetTexts(texts.TpDiArtificialHeadKey(), texts.TpDiArtificialHeadTip());
  Check5.SetTexts(texts.TpDiNoArtificialHeadKey(), texts.TpDiNoArtificialHeadTip());
  Check6.SetTexts(texts.TpDiCompressedKey(), texts.TpDiCompressedTip());
  Check7.SetTexts(texts.TpDiNoCompressedKey(), texts.TpDiNoCompressedTip());
  Check8.SetTexts(texts.TpDiStaticPTYKey(), texts.TpDiStaticPTYTip());
  Check9.SetTexts(texts.TpDiDynamicPTYKey(), texts.TpDiDynamicPTYTip());
  Command3.SetTexts(texts.TpDiReadKey(), texts.TpDiReadTip());
  Command4.SetTexts(texts.TpDiSendKey(), texts.TpDiSendTip());
  Command5.SetTexts(texts.TpDiSendBurstKey(), texts.TpDiSendBurstTip());
}

void TpDiTab::Open() {
  ShowTransferButtons({{&Command3}, {&Command4}, {&Command5}});
  Refresh();
}

void TpDiTab::Refresh() {
  Show(Check1, Check10, configData->Tp());
  Show(Check2, Check3, configData->Mono());
  Show(Check4, Check5, configData->ArtificialHead());
  Show(Check6, Check7, configData->Compressed());
  Show(Check8, Check9, configData->StaticPty());
}

void TpDiTab::Read() {
  configData->GetTpRds();
  Show(Check1, Check10, configData->Tp());
  configData->GetDiRds();
  Refresh();
}

void TpDiTab::Send() {
  RunItems(2, [](int number) {
    if (number == 0) {
      SendTp(configData->Tp());
    } else {
      configData->SetDiRds();
    }
  });
}

void TpDiTab::SendBurst() {
  // One TP more than a burst has passes, and a single DI.
  RunItems(configData->Burst() + 1, [](int /*number*/) { SendTp(configData->Tp()); });
  if (LinkError == kLinkOk) configData->SetDiRds();
}

}  // namespace corvalis
