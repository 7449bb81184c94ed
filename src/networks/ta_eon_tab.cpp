#include "networks/ta_eon_tab.h"

#include <algorithm>
#include <string>
#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "networks/eon_data.h"

namespace corvalis {

namespace {

std::int16_t Index(int value) { return static_cast<std::int16_t>(value); }

std::string ListName(int i) { return "EON " + std::to_string(i); }

}  // namespace

TaEonTab::TaEonTab(Window& window)
    : window_(window),
      buttons_(window,
               {.read_one = &ReadTaEonCommand,
                .read_all = &ReadTaEonAllCommand,
                .send_one = &SendTaEonCommand,
                .send_all = &SendTaEonAllCommand,
                .burst = &SendTaEonAllBurstCommand},
               // Only the burst has pauses and needs an address. That is meant.
               {.pause_burst = 0.2F, .extra_passes = 1, .guard_sends = false},
               {{.count = Switches,
                 .selected =
                     [this] {
                       return selected_ta_ == kNone ? std::vector<int>{}
                                                    : std::vector<int>{selected_ta_};
                     },
                 .read =
                     [this](int list) {
                       eonData->GetTaRds(Index(list));
                       TaEonCheck[list].SetChecked(eonData->Ta(Index(list)));  // also on failure
                     },
                 .send = [](int list) { eonData->SetTaRds(Index(list)); }}}) {
  for (int i = 0; i < kTaEonSwitches; ++i) {
    TaEonCheck[i].Click = [this, i] {
      if (!opening_) eonData->SetTa(TaEonCheck[i].Checked(), Index(i));
      ShowState(i);
    };
    TaEonCheck[i].GotFocus = [this, i] { Select(i); };
  }
}

int TaEonTab::Switches() { return std::min<int>(kTaEonSwitches, eonData->MaxListNum()); }

void TaEonTab::Select(int i) {
  selected_ta_ = Index(i);
  TaEonSelectedLabel.SetCaption(i == kNone ? "-" : ListName(i));
}

void TaEonTab::ShowState(int i) {
  TaEonStateLabel[i].SetCaption(TaEonCheck[i].Checked() ? languageData->TAONKey()
                                                        : languageData->TAOFFKey());
}

void TaEonTab::ShowNames() {
  for (int i = 0; i < Switches(); ++i) {
    const std::string pi = HexDigits(eonData->Pi(Index(i)), 4, 4);
    TaEonNameLabel[i].SetCaption(eonData->Psn(Index(i)) + "  PI " + pi);
  }
}

void TaEonTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  for (int i = 0; i < kTaEonSwitches; ++i) Text2[i].SetCaption(ListName(i));
  ReadTaEonCommand.SetTexts(texts.TaEonReadOneKey(), texts.TaEonReadOneTip());
  ReadTaEonAllCommand.SetTexts(texts.TaEonReadAllKey(), texts.TaEonReadAllTip());
  SendTaEonCommand.SetTexts(texts.TaEonSendOneKey(), texts.TaEonSendOneTip());
  SendTaEonAllCommand.SetTexts(texts.TaEonSendAllListKey(), texts.TaEonSendAllListTip());
  SendTaEonAllBurstCommand.SetTexts(texts.TaEonSendAllBurstKey(), texts.TaEonSendAllBurstTip());
}

void TaEonTab::Open() {
  buttons_.Show();
  Select(kNone);
  opening_ = true;
  for (int i = 0; i < kTaEonSwitches; ++i) {
    const bool there = i < Switches();
    TaEonCheck[i].SetChecked(false);
    TaEonCheck[i].SetEnabled(there);
    Text2[i].SetEnabled(there);
    if (!there) TaEonNameLabel[i].SetCaption("-");
    ShowState(i);
  }
  opening_ = false;
  ShowNames();
}

}  // namespace corvalis
