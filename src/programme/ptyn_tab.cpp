#include "programme/ptyn_tab.h"

#include <cstdint>
#include <string>
#include <vector>

#include "config/language_data.h"
#include "config/programme_types.h"
#include "link/list_commands.h"
#include "programme/ptyn_data.h"

namespace corvalis {

namespace {

std::uint8_t Index(int item) { return static_cast<std::uint8_t>(item); }

}  // namespace

PtynTab::PtynTab(Window& window)
    : window_(window),
      buttons_(window,
               {.read_one = &ReadPtynCommand,
                .read_all = &ReadPtynAllCommand,
                .send_one = &SendPtynCommand,
                .send_all = &SendPtynAllCommand,
                .burst = &SendPtynBurstCommand},
               {.pause_send = 0.2F, .pause_burst = 0.2F, .extra_passes = 1},
               {{.count = [this] { return PtyCombo.Count(); },
                 .selected = [this] { return std::vector<int>{PtyCombo.Index()}; },
                 .read = [](int item) { ptynData->GetOneRds(Index(item)); },
                 .send = [](int item) { ptynData->SetOneRds(Index(item)); },
                 .refresh = [this] { ShowName(); }}}) {
  PtyCombo.Fill(PtynTypeLines());
  PtyCombo.Click = [this] {
    ptynData->SetCurrentPtyn(Index(PtyCombo.Index()));
    ShowName();
  };
  PtynText.Change = [this] {
    FitName();
    PtynRadioLabel.SetCaption(PtynText.Text());
  };
  PtynText.LostFocus = [this] { ptynData->SetPtyn(PtynText.Text(), ptynData->CurrentPtyn()); };
}

// A longer name is cut, and is taken at once.
void PtynTab::FitName() {
  if (PtynText.Text().size() <= kPtynCharacters) return;
  PtynText.CutTo(kPtynCharacters);
  ptynData->SetPtyn(PtynText.Text(), ptynData->CurrentPtyn());
}

void PtynTab::ShowName() { PtynText.SetText(ptynData->Ptyn(ptynData->CurrentPtyn())); }

void PtynTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  PtyLabel.SetTexts(texts.PtynPTYKey(), texts.PtynPTYTip());
  PtyCombo.SetToolTip(texts.PtynPTYTip());
  PtynLabel.SetTexts(texts.PtynPTYNameKey(), texts.PtynPTYNameTip());
  PtynText.SetToolTip(texts.PtynPTYNameTip());
  ReadPtynCommand.SetTexts(texts.PtynReadOneKey(), texts.PtynReadOneTip());
  ReadPtynAllCommand.SetTexts(texts.PtynReadAllKey(), texts.PtynReadAllTip());
  SendPtynCommand.SetTexts(texts.PtynSendOneKey(), texts.PtynSendOneTip());
  SendPtynAllCommand.SetTexts(texts.PtynSendAllKey(), texts.PtynSendAllTip());
  SendPtynBurstCommand.SetTexts(texts.PtynSendAllBurstKey(), texts.PtynSendAllBurstTip());
}

void PtynTab::Open() {
  buttons_.Show();
  PtyCombo.SetIndex(ptynData->CurrentPtyn());
  ShowName();
}

}  // namespace corvalis
