#include "networks/eon_tab.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "air/af_b_codes.h"
#include "config/conversions.h"
#include "config/language_data.h"
#include "config/programme_types.h"
#include "config/words.h"
#include "link/list_commands.h"
#include "networks/network_boxes.h"

namespace corvalis {

namespace {

constexpr int kHexDigits = 4;

std::int16_t Index(int value) { return static_cast<std::int16_t>(value); }

std::int16_t Current() { return eonData->CurrentList(); }

// The upper ends of the two methods differ. That is meant.
std::optional<float> MethodA(float value) {
  const bool fm = value >= air::kMinFreq && value <= air::kMaxFreq;
  return fm ? std::optional(value) : std::nullopt;
}

std::optional<float> MethodB(float value) {
  const bool fm = value >= air::kMinFreq && value <= air::kMaxFreqB;
  return fm ? std::optional(value) : std::nullopt;
}

std::optional<float> LfOrMf(float value) {
  const bool lf = value >= air::kMinLfFreq && value <= air::kMaxLfFreq;
  const bool mf = value >= air::kMinMfFreq && value <= air::kMaxMfFreq;
  return lf || mf ? std::optional(air::OnAfRaster(value)) : std::nullopt;
}

int DecimalsOfB(int index) { return index == kEonAm ? 0 : 1; }

}  // namespace

EonTab::EonTab(Window& window)
    : window_(window),
      buttons_(window,
               {.read_one = &ReadEonCommand,
                .read_all = &ReadEonAllCommand,
                .send_one = &SendEonCommand,
                .send_all = &SendEonAllCommand,
                .burst = &SendEonBurstCommand},
               {.pause_read = 0.2F, .pause_send = 0.2F, .pause_burst = 0.2F, .extra_passes = 1},
               {{.count = [] { return eonData->MaxListNum(); },
                 .selected = [] { return std::vector<int>{Current()}; },
                 .read = [](int list) { eonData->GetOneRds(Index(list)); },
                 .send = [](int list) { eonData->SetOneRds(Index(list)); },
                 .refresh = [this] { RefreshEonTab(); }}}) {
  SetListRules();
  SetSwitchRules();
  SetFrequencyRules();
  EonPsnText.Change = [this] {
    EonPsnText.CutTo(kPsnCharacters);
    EonPsnRadioLabel.SetCaption(EonPsnText.Text());
    if (!refreshing_) eonData->SetPsn(EonPsnText.Text(), Current());
  };
  const auto hold_hex = [this](TextBox& box, void (EonData::*set)(std::int32_t, std::int16_t)) {
    HoldHex(box, kHexDigits, [this, set](std::int32_t value) {
      if (!refreshing_) (eonData->*set)(value, Current());
    });
  };
  hold_hex(EonPiText, &EonData::SetPi);
  hold_hex(EonPinText, &EonData::SetPin);
  EonPtyCombo.Fill(ProgrammeTypeLines());
  EonPtyCombo.Click = [this] {
    if (refreshing_ || EonPtyCombo.Index() == ListBox::kNone) return;
    eonData->SetPty(static_cast<std::uint8_t>(EonPtyCombo.Index()), Current());
  };
}

void EonTab::SetListRules() {
  EonListText.Change = [this] {
    if (refreshing_ || EonListText.Text().empty()) return;
    constexpr double kFar = 1e9;  // whatever goes around
    GoTo(static_cast<std::int32_t>(std::clamp(LeadingNumber(EonListText.Text()), -1.0, kFar)));
    EonListText.Select(static_cast<int>(EonListText.Text().size()), 0);  // typing goes on behind it
  };
  EonListText.LostFocus = [this] { RefreshEonTab(); };  // it may have been emptied
  EonListScroll.StepUp = [this] { GoTo(Current() + 1); };
  EonListScroll.StepDown = [this] { GoTo(Current() - 1); };
}

void EonTab::GoTo(std::int32_t list) {
  eonData->SetCurrentList(list);
  RefreshEonTab();
}

// By hand an announcement needs the programme flag; a list that has it without keeps it.
void EonTab::SetSwitchRules() {
  EonEnableCheck.Click = [this] {
    if (!refreshing_) eonData->SetEnable(EonEnableCheck.Checked(), Current());
  };
  EonTpCheck.Click = [this] {
    if (refreshing_) return;
    if (!EonTpCheck.Checked()) {
      EonTaCheck.SetChecked(false);
      eonData->SetTa(false, Current());
    }
    eonData->SetTp(EonTpCheck.Checked(), Current());
  };
  EonTaCheck.Click = [this] {
    if (refreshing_) return;
    if (EonTaCheck.Checked() && !EonTpCheck.Checked()) EonTaCheck.SetChecked(false);
    eonData->SetTa(EonTaCheck.Checked(), Current());
  };
}

void EonTab::SetFrequencyRules() {
  for (int i = 0; i < kEonAfA; ++i) {
    HoldFrequency(EonAfAText[i], 1, MethodA,
                  [i](float value) { eonData->SetAfA(value, Current(), Index(i)); });
  }
  for (int i = 0; i < kEonAfB; ++i) {
    HoldFrequency(EonAfBText[i], DecimalsOfB(i), i == kEonAm ? LfOrMf : MethodB,
                  [i](float value) { eonData->SetAfB(value, Current(), Index(i)); });
  }
}

void EonTab::RefreshEonTab() {
  refreshing_ = true;
  const std::int16_t list = Current();
  EonListText.SetText(std::to_string(list));
  EonEnableCheck.SetChecked(eonData->Enable(list));
  EonPsnText.SetText(eonData->Psn(list));
  EonPiText.SetText(HexDigits(eonData->Pi(list), 1, kHexDigits));
  EonPinText.SetText(HexDigits(eonData->Pin(list), 1, kHexDigits));
  EonPtyCombo.SetIndexOrNone(eonData->Pty(list));
  EonTpCheck.SetChecked(eonData->Tp(list));
  EonTaCheck.SetChecked(eonData->Ta(list));
  for (int i = 0; i < kEonAfA; ++i) {
    EonAfAText[i].SetText(FixedPoint(eonData->AfA(list, Index(i)), 3, 1));
  }
  for (int i = 0; i < kEonAfB; ++i) {
    EonAfBText[i].SetText(FixedPoint(eonData->AfB(list, Index(i)), 3, DecimalsOfB(i)));
  }
  refreshing_ = false;
}

void EonTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  // The abbreviations of the standard are the same in every language.
  EonListLabel.SetTexts("EON", texts.EonListNrTip());
  EonListText.SetToolTip(texts.EonListNrTip());
  EonListScroll.SetToolTip(texts.EonListNrTip());
  EonEnableCheck.SetCaption(texts.EonEnableKey());
  EonPsnLabel.SetTexts("PSN", texts.EonPsnTip());
  EonPsnText.SetToolTip(texts.EonPsnTip());
  EonPiLabel.SetTexts("PI", texts.EonPiTip());
  EonPiText.SetToolTip(texts.EonPiTip());
  EonPinLabel.SetTexts("PIN", texts.EonPinTip());
  EonPinText.SetToolTip(texts.EonPinTip());
  EonPtyLabel.SetTexts("PTY", texts.EonPtyTip());
  EonPtyCombo.SetToolTip(texts.EonPtyTip());
  EonTpCheck.SetCaption(Word("TP, traffic programme"));
  EonTaCheck.SetCaption(Word("TA, traffic announcement"));
  EonAfALabel.SetCaption(texts.EonAfAKey());
  for (TextBox& box : EonAfAText) box.SetToolTip(texts.EonEonAfATip());
  EonAfBLabel.SetCaption(texts.EonAfBKey());
  for (int i = 0; i < kEonAm; ++i) {
    EonAfBText[i].SetToolTip(i % 2 == 0 ? texts.EonEonAfBMainTip() : texts.EonEonAfBTip());
  }
  EonAfBAmLabel.SetTexts(texts.EonAfBAMKey(), texts.EonEonAfBAMTip());
  EonAfBText[kEonAm].SetToolTip(texts.EonEonAfBAMTip());
  ReadEonCommand.SetTexts(texts.EonReadOneListKey(), texts.EonReadOneListTip());
  ReadEonAllCommand.SetTexts(texts.EonReadAllListKey(), texts.EonReadAllListTip());
  SendEonCommand.SetTexts(texts.EonSendOneListKey(), texts.EonSendOneListTip());
  SendEonAllCommand.SetTexts(texts.EonSendAllListKey(), texts.EonSendAllListTip());
  SendEonBurstCommand.SetTexts(texts.EonSendAllBurstKey(), texts.EonSendAllBurstTip());
}

void EonTab::Open() {
  buttons_.Show();
  RefreshEonTab();
}

}  // namespace corvalis
