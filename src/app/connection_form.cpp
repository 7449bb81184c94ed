#include "app/connection_form.h"

#include <functional>
#include <string>

#include "app/configuration.h"
#include "config/config_data.h"
#include "config/language_data.h"
#include "config/words.h"
#include "link/list_commands.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "link/utility.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

using Text = const std::string& (LanguageData::*)() const;

// A tick and the flag that it stands for.
struct Tick {
  CheckBox ConnectionForm::*box;
  PresetFlag preset;
  void (ConfigData::*set_preset)(bool preset);
  Text key;
  Text tip;
  PresetFlag enabled = nullptr;  // null: always
};

constexpr Tick kTicks[] = {
    {&ConnectionForm::PsnCheck, &ConfigData::PresetPsn, &ConfigData::SetPresetPsn,
     &LanguageData::ConnectionPSNKey, &LanguageData::ConnectionPSNTip},
    {&ConnectionForm::Check3, &ConfigData::PresetRt, &ConfigData::SetPresetRt,
     &LanguageData::ConnectionRTKey, &LanguageData::ConnectionRTTip},
    {&ConnectionForm::PtynCheck, &ConfigData::PresetPtyn, &ConfigData::SetPresetPtyn,
     &LanguageData::ConnectionPTYNKey, &LanguageData::ConnectionPTYNTip, &ConfigData::PtynEnable},
    {&ConnectionForm::Check2, &ConfigData::PresetAf, &ConfigData::SetPresetAf,
     &LanguageData::ConnectionAFListKey, &LanguageData::ConnectionAFListTip},
    {&ConnectionForm::Check1, &ConfigData::PresetPi, &ConfigData::SetPresetPi,
     &LanguageData::ConnectionPIKey, &LanguageData::ConnectionPITip},
    {&ConnectionForm::EccCheck, &ConfigData::PresetEcc, &ConfigData::SetPresetEcc,
     &LanguageData::ConnectionECCKey, &LanguageData::ConnectionECCTip, &ConfigData::EccEnable},
    {&ConnectionForm::LicCheck, &ConfigData::PresetLic, &ConfigData::SetPresetLic,
     &LanguageData::ConnectionLICKey, &LanguageData::ConnectionLICTip, &ConfigData::LicEnable},
    {&ConnectionForm::Check11, &ConfigData::PresetTp, &ConfigData::SetPresetTp,
     &LanguageData::ConnectionTPKey, &LanguageData::ConnectionTPTip},
    {&ConnectionForm::Check8, &ConfigData::PresetDi, &ConfigData::SetPresetDi,
     &LanguageData::ConnectionDIKey, &LanguageData::ConnectionDITip},
    {&ConnectionForm::Check5, &ConfigData::PresetCt, &ConfigData::SetPresetCt,
     &LanguageData::ConnectionCTKey, &LanguageData::ConnectionCTTip},
    {&ConnectionForm::Check4, &ConfigData::PresetPin, &ConfigData::SetPresetPin,
     &LanguageData::ConnectionPINKey, &LanguageData::ConnectionPINTip},
    {&ConnectionForm::EonCheck, &ConfigData::PresetEon, &ConfigData::SetPresetEon,
     &LanguageData::ConnectionEONKey, &LanguageData::ConnectionEONTip, &ConfigData::EonEnable},
    {&ConnectionForm::LiCheck, &ConfigData::PresetLi, &ConfigData::SetPresetLi,
     &LanguageData::ConnectionLIKey, &LanguageData::ConnectionLITip, &ConfigData::EonEnable},
    {&ConnectionForm::Check6, &ConfigData::PresetTdc, &ConfigData::SetPresetTdc,
     &LanguageData::ConnectionTDCKey, &LanguageData::ConnectionTDCTip},
    {&ConnectionForm::Check7, &ConfigData::PresetIh, &ConfigData::SetPresetIh,
     &LanguageData::ConnectionIHKey, &LanguageData::ConnectionIHTip},
    {&ConnectionForm::TmcCheck, &ConfigData::PresetTmc, &ConfigData::SetPresetTmc,
     &LanguageData::ConnectionTMCKey, &LanguageData::ConnectionTMCTip, &ConfigData::TmcEnable},
};

// Makes `box` hold a Coder ID, which `store` takes at each change.
void HoldCoderId(TextBox& box, void (ConfigData::*store)(const std::string& id)) {
  box.SetMaxLength(kCoderIdCharacters);
  box.KeyPress = [&box](int& key) {
    const bool full = box.Text().size() >= kCoderIdCharacters && box.SelLength() == 0;
    if (full && key != kKeyBackspace) RefuseKey(key);
  };
  box.Change = [&box, store] { (configData->*store)(box.Text()); };
}

std::string LoadInWords(ConfigurationRun run) {
  const ConfigurationLoad load = LoadOfConfiguration(run);
  if (load.items == 0 || load.passes <= 0) return Word("nothing");
  std::string words =
      load.items == 1 ? Word("1 item") : Word("%1 items", {std::to_string(load.items)});
  if (load.passes > 1) words = Word("%1 in %2 passes", {words, std::to_string(load.passes)});
  return words + ", " + AboutInWords(load.seconds);
}

}  // namespace

ConnectionForm::ConnectionForm(Window& main_menu) : main_menu_(main_menu) {
  HoldCoderId(Text1, &ConfigData::SetPresetPassword);
  HoldCoderId(Text2, &ConfigData::SetPresetNewPassword);
  for (const Tick& tick : kTicks) {
    CheckBox& box = this->*tick.box;
    box.Click = [this, &box, &tick] {
      if (opening_) return;
      (configData->*tick.set_preset)(box.Checked());
      ShowLoad();
    };
  }
  PSNPagesCheck.Click = [this] { configData->SetPsnPageEnable(PSNPagesCheck.Checked()); };
  AFAOption.Click = [this] {
    AFBOption.SetChosen(false);
    configData->SetAfMethodA(true);
    ShowLoad();
  };
  AFBOption.Click = [this] {
    AFAOption.SetChosen(false);
    configData->SetAfMethodA(false);
    ShowLoad();
  };

  // The way to address a Coder can't ask that it has been addressed.
  Command4.Click = [this] {
    RunLive(window, [] { SendAddress(configData->PresetPassword(), false); });
  };
  Command5.Click = [this] {
    RunLive(window, [] { SendAddress(configData->PresetNewPassword(), true); });
  };
  Command1.Click = [this] { RunRead(window, [] { RunConfiguration(ConfigurationRun::kRead); }); };
  Command11.Click = [this] { RunSend(window, [] { RunConfiguration(ConfigurationRun::kSend); }); };
  Command12.Click = [this] { RunSend(window, BurstConfiguration); };
  window.Resumed = [this] {
    ShowAddressState();
    ShowLoad();  // a transfer may have done what is done only once
  };
}

void ConnectionForm::Load() {
  InitCaptions();
  ShowRecord();
  ShowTransferButtons({{&Command1}, {&Command11}, {&Command12}});
  ShowAddressState();
  ShowLoad();
  window.ShowModal(main_menu_);
}

void ConnectionForm::InitCaptions() {
  window.SetCaption(Word("CONNECTION"));
  const LanguageData& texts = *languageData;
  AddressLabel.SetTexts(texts.ConnectionAddressKey(), texts.ConnectionAddressTip());
  Text1.SetToolTip(texts.ConnectionAddressTip());
  Command4.SetTexts(texts.ConnectionSendAddressKey(), texts.ConnectionSendAddressTip());
  NewAddressLabel.SetTexts(texts.ConnectionNewAddressKey(), texts.ConnectionNewAddressTip());
  Text2.SetToolTip(texts.ConnectionNewAddressTip());
  Command5.SetTexts(texts.ConnectionSendNewAddressKey(), texts.ConnectionSendNewAddressTip());
  PSNPagesCheck.SetTexts(texts.ConnectionPSNPagesKey(), texts.ConnectionPSNPagesTip());
  AFAOption.SetTexts(texts.ConnectionAFAKey(), texts.ConnectionAFATip());
  AFBOption.SetTexts(texts.ConnectionAFBKey(), texts.ConnectionAFBTip());
  for (const Tick& tick : kTicks) (this->*tick.box).SetCaption((texts.*tick.key)());
  Command1.SetTexts(texts.ConnectionReadConfigKey(), texts.ConnectionReadConfigTip());
  Command11.SetTexts(texts.ConnectionSendConfigKey(), texts.ConnectionSendConfigTip());
  Command12.SetTexts(texts.ConnectionSendBurstConfigKey(), texts.ConnectionSendBurstConfigTip());
}

// Stores nothing. The box of TMC opens clear whatever its flag says: a selection of the file stays
// in force, unseen, until the box is clicked. That is meant.
void ConnectionForm::ShowRecord() {
  opening_ = true;
  Text1.SetText(configData->PresetPassword());
  Text2.SetText(configData->PresetNewPassword());
  for (const Tick& tick : kTicks) {
    CheckBox& box = this->*tick.box;
    box.SetChecked(tick.box != &ConnectionForm::TmcCheck && (configData->*tick.preset)());
    box.SetEnabled(tick.enabled == nullptr || (configData->*tick.enabled)());
  }
  PSNPagesCheck.SetChecked(configData->PsnPagesEnable());
  (configData->AfMethodA() ? AFAOption : AFBOption).SetChosen(true);
  opening_ = false;
}

void ConnectionForm::ShowAddressState() {
  AddressStateLabel.SetCaption(
      AddressSent ? Word("address sent")
                  : Word("no address sent: %1 first", {languageData->ConnectionSendAddressKey()}));
}

void ConnectionForm::ShowLoad() {
  for (const Tick& tick : kTicks) {
    (this->*tick.box).SetToolTip((languageData->*tick.tip)() + ":\n" + TravelsWith(tick.preset));
  }
  const bool one_way = configData->Satellite();
  ReadLoadLabel.SetVisible(!one_way);
  ReadLoadLabel.SetCaption(Word("To read: %1", {LoadInWords(ConfigurationRun::kRead)}));
  SendLoadLabel.SetCaption(Word("To send: %1", {LoadInWords(ConfigurationRun::kSend)}));
  BurstLoadLabel.SetVisible(one_way);
  BurstLoadLabel.SetCaption(Word("In a burst: %1", {LoadInWords(ConfigurationRun::kBurst)}));
}

}  // namespace corvalis
