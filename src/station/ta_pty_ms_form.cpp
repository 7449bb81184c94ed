#include "station/ta_pty_ms_form.h"

#include <cstdint>

#include "config/config_data.h"
#include "config/language_data.h"
#include "config/programme_types.h"
#include "config/words.h"
#include "link/station_commands.h"
#include "link/transfer.h"
#include "platform/platform.h"

namespace corvalis {

TaPtyMsForm::TaPtyMsForm(Window& main_menu) : main_menu_(main_menu) {
  window.SetCaption("TA - PTY - MS");
  window.Unloading = [this] {
    if (pty_pending_) StorePty();
  };

  Combo1.Fill(ProgrammeTypeLines());
  Combo1.GotFocus = [this] { pty_pending_ = true; };
  Combo1.LostFocus = [this] { StorePty(); };

  Command1.Click = [this] { SendPtyLive(); };
  Command2.Click = [this] { ToggleTa(); };
  Command6.Click = [this] { ToggleMs(); };
  Command8.Click = [this] { RunRead(window, [this] { ReadAll(); }); };

  for (CheckBox* indicator : {&Check1, &Check2, &Check3, &Check4}) {
    indicator->SetChecked(true);
    indicator->Click = [indicator] { indicator->SetChecked(true); };
  }
  // Colour is for the announcement alone, so that nothing else on the screen draws the eye.
  Check3.SetTone(CheckBox::Tone::kOn);
}

void TaPtyMsForm::Load() {
  InitCaptions();
  pty_pending_ = false;
  ShowTransferButtons({{&Command8}, {&Command1, &Command2, &Command6}, {}});
  ShowPty();
  ShowTa();
  ShowMs();
  window.ShowModal(main_menu_);
}

void TaPtyMsForm::InitCaptions() {
  const LanguageData& texts = *languageData;
  // The abbreviations of the standard are the same in every language.
  TaLabel.SetTexts("TA", texts.TATrafficAnnouncementTip());
  PtyLabel.SetTexts("PTY", texts.TAProgramTypeComboTip());
  MsLabel.SetTexts("M/S", texts.TAMusicSpeechTip());
  Combo1.SetToolTip(texts.TAProgramTypeComboTip());
  Command1.SetTexts(texts.TAProgramTypeKey(), texts.TAProgramTypeTip());
  Command2.SetTexts(texts.TATrafficAnnouncementKey(), texts.TATrafficAnnouncementTip());
  Command6.SetTexts(texts.TAMusicSpeechKey(), texts.TAMusicSpeechTip());
  Command8.SetTexts(texts.TAReadKey(), texts.TAReadTip());
  Check1.SetCaption(texts.TAMusicKey());
  Check2.SetCaption(texts.TASpeechKey());
  Check3.SetCaption(texts.TAONKey());
  Check4.SetCaption(texts.TAOFFKey());
}

void TaPtyMsForm::StorePty() {
  configData->SetPty(static_cast<std::int16_t>(Combo1.Index()));
  pty_pending_ = false;
}

// A PTY beyond the last type, which a file may bring, is not sent either: the list shows none for
// it.
// Neither a typed text, which is line -1, nor a number beyond 31 from a file is a programme type:
// the Coder gets neither.
void TaPtyMsForm::SendPtyLive() {
  if (!IsProgrammeType(configData->Pty())) {
    Machine().dialogs->Show({.text = Word("Select a programme type from the list first."),
                             .title = window.Caption(),
                             .style = BoxStyle::kWarning,
                             .help_file = {}});
    return;
  }
  RunLive(window, [] { SendLive([] { SendPty(configData->Pty()); }); });
}

void TaPtyMsForm::ToggleTa() {
  RunLive(window, [this] {
    configData->SetTa(!configData->Ta());
    SendLive([] { SendTa(configData->Ta()); });
    ShowTa();
  });
}

void TaPtyMsForm::ToggleMs() {
  RunLive(window, [this] {
    configData->SetMusic(!configData->Music());
    SendLive([] { SendMs(configData->Music()); });
    ShowMs();
  });
}

void TaPtyMsForm::ReadAll() {
  std::int16_t pty = configData->Pty();
  ReadPty(pty);
  configData->SetPty(pty);
  bool ta = configData->Ta();
  ReadTa(ta);
  configData->SetTa(ta);
  bool music = configData->Music();
  ReadMs(music);
  configData->SetMusic(music);
  ShowPty();
  ShowTa();
  ShowMs();
}

void TaPtyMsForm::ShowPty() {
  Combo1.SetIndex(IsProgrammeType(configData->Pty()) ? configData->Pty() : ListBox::kNone);
}

void TaPtyMsForm::ShowTa() {
  Check3.SetVisible(configData->Ta());
  Check4.SetVisible(!configData->Ta());
}

void TaPtyMsForm::ShowMs() {
  Check1.SetVisible(configData->Music());
  Check2.SetVisible(!configData->Music());
}

}  // namespace corvalis
