#include "link/rs232c_form.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "busy/wait_form.h"
#include "config/config_data.h"
#include "config/language_data.h"
#include "link/modem.h"
#include "link/serial_management.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

constexpr std::int16_t kMinBurst = 2;
constexpr std::int16_t kMaxBurst = 10;

enum Mode { kSatellite, kLocal, kModem };

// The Coder may be spoken to: over a call, or over an open port where no modem stands in between.
bool Reach() { return configData->Modem() ? configData->ModemHookOn() : LinkOpen; }

// The entry of `kFramings` for a parity letter; kNone if it is none of them.
int FramingOf(const std::string& parity) {
  for (std::size_t i = 0; i < kFramings.size(); ++i) {
    if (kFramings[i].parity == parity) return static_cast<int>(i);
  }
  return ListBox::kNone;
}

const Framing& FramingAt(int index) { return kFramings.at(static_cast<std::size_t>(index)); }

int BaudrateIndex(std::int16_t baudrate) {
  const auto* const found = std::find(kBaudrates.begin(), kBaudrates.end(), baudrate);
  return found == kBaudrates.end() ? ListBox::kNone : static_cast<int>(found - kBaudrates.begin());
}

// Does `work`, which lets events run, while the operator can't start anything else on the screen.
template <class Work>
void WhileDisabled(Window& screen, const Work& work) {
  const bool enabled = screen.Enabled();
  screen.SetEnabled(false);
  work();
  screen.SetEnabled(enabled);
}

// Does `work` behind the wait screen.
template <class Work>
void WhileWaiting(Window& screen, const Work& work) {
  TheWaitForm().window.Show(&screen);
  work();
  TheWaitForm().window.Hide();
}

}  // namespace

RS232CForm::RS232CForm(MainMenu main_menu)
    : main_menu_(std::move(main_menu)),
      pending_{{{BaudrateCombo, [this] { TakeBaudrate(); }},
                {Combo1, [this] { TakeBurst(); }},
                {ParityCombo, [this] { TakeParity(); }},
                {RdsOptionCombo, [this] { TakeMode(); }}}} {
  Check1.SetCaption("Tone");
  Check2.SetCaption("Pulse");
  Command2.SetCaption("Hook");
  Command1.SetCaption("Hang up");
  StopBitCombo.SetEnabled(false);
  Text1.SetLocked(true);
  Timer1.SetEnabled(false);
  FillLists();

  for (ListBox* list : {&RdsOptionCombo, &Combo1, &SerialCombo, &BaudrateCombo, &ParityCombo,
                        &StopBitCombo, &LanguageCombo}) {
    list->SetPointerOnly(true);
    list->KeyPress = [](int& key) { key = kKeyCancelled; };
  }
  for (PendingList& pending : pending_) {
    pending.list.GotFocus = [&pending] { pending.has_focus = true; };
    pending.list.LostFocus = [&pending] { Leave(pending); };
  }
  LanguageCombo.Click = [this] { SwitchLanguage(); };
  const auto work = [this](Button& button, void (RS232CForm::*operation)()) {
    button.Click = [this, operation] {
      WhileDisabled(window, [this, operation] { (this->*operation)(); });
      window.SetFocus();
    };
  };
  work(Command31, &RS232CForm::AutoSetting);
  work(Command2, &RS232CForm::Hook);
  work(Command1, &RS232CForm::HangUp);
  // The record says which of the two is checked, so a box that is pressed again stays checked.
  const auto choose_tone = [this](const CheckBox& box, bool tone) {
    if (box.Checked()) configData->SetModemTone(tone);
    ShowTone();
  };
  Check1.Click = [this, choose_tone] { choose_tone(Check1, true); };
  Check2.Click = [this, choose_tone] { choose_tone(Check2, false); };
  Text2.Change = [this] { configData->SetModemTel(Text2.Text()); };
  Timer1.Tick = [this] { ReadDialogue(); };
  window.Unloading = [this] { Unload(); };
}

void RS232CForm::FillLists() {
  RdsOptionCombo.Fill({"Satellite", "Local", "Modem"});
  for (int times = kMinBurst; times <= kMaxBurst; ++times) {
    Combo1.Add(std::to_string(times) + (times < 10 ? "  Times" : " Times"));
  }
  for (int number = 1; number <= kPorts; ++number) {
    SerialCombo.Add("COM " + std::to_string(number));
  }
  for (const std::int16_t baudrate : kBaudrates) BaudrateCombo.Add(std::to_string(baudrate));
  for (const Framing& framing : kFramings) ParityCombo.Add(framing.name);
  StopBitCombo.Fill({"1", "2"});
}

void RS232CForm::Load() {
  window.SetEnabled(true);
  InitCaptions();
  for (PendingList& pending : pending_) pending.has_focus = false;
  RdsOptionCombo.SetIndex(configData->Satellite() ? kSatellite
                          : configData->Modem()   ? kModem
                                                  : kLocal);
  Combo1.SetIndexOrNone(configData->Burst() - kMinBurst);
  ShowPortSettings();
  SerialCombo.SetEnabled(true);  // Hook locks it, until Hang up or until the screen opens again
  UpdateEnabling();
  window.ShowModal(main_menu_.window);
}

void RS232CForm::InitCaptions() {
  const LanguageData& texts = *languageData;
  marks.Follow();
  window.SetCaption(texts.MainSetupKey());

  LanguageCombo.Clear();
  for (int i = 0; i < configData->NumIniLang(); ++i) LanguageCombo.Add(configData->LanguageName(i));
  LanguageCombo.SetIndexOrNone(configData->LanguageDflt());

  const auto caption = [](Label& label, ListBox& list, const std::string& text,
                          const std::string& tip) {
    label.SetTexts(text, tip);
    list.SetToolTip(tip);
  };
  caption(RdsOptionLabel, RdsOptionCombo, texts.SetupRdsOptionKey(), texts.SetupRdsOptionTip());
  caption(BurstLabel, Combo1, texts.SetupBurstKey(), texts.SetupBurstTip());
  caption(SerialLabel, SerialCombo, texts.SetupPortKey(), texts.SetupPortTip());
  caption(BaudrateLabel, BaudrateCombo, texts.SetupBaudrateKey(), texts.SetupBaudrateTip());
  caption(ParityLabel, ParityCombo, texts.SetupParityKey(), texts.SetupParityTip());
  caption(StopBitLabel, StopBitCombo, texts.SetupStopBitKey(), texts.SetupStopBitTip());
  caption(LanguageLabel, LanguageCombo, texts.SetupLanguageMsg(), texts.SetupLanguageTip());
  Command31.SetTexts(texts.SetupAutosettingKey(), texts.SetupAutosettingTip());
}

void RS232CForm::UpdateEnabling() {
  const bool satellite = configData->Satellite();
  const bool modem = configData->Modem();
  Combo1.SetEnabled(satellite);
  Command31.SetEnabled(!satellite && !modem);
  OfferDialling(modem && !configData->ModemHookOn());
  Command1.SetEnabled(modem);
  Text1.SetEnabled(modem);
  Timer1.SetEnabled(modem);
  ShowDialogue(configData->ModemDlg());
  Text2.SetText(configData->ModemTel());
  ShowTone();
}

void RS232CForm::OfferDialling(bool offered) {
  Text2.SetEnabled(offered);
  Check1.SetEnabled(offered);
  Check2.SetEnabled(offered);
  Command2.SetEnabled(offered);
}

void RS232CForm::ShowPortSettings() {
  SerialCombo.SetIndexOrNone(configData->CommPort() - 1);
  BaudrateCombo.SetIndexOrNone(BaudrateIndex(configData->Baudrate()));
  ParityCombo.SetIndexOrNone(FramingOf(configData->Parity()));
  ShowStopBit();
}

// The stop bits that go with the parity shown, whatever the record holds.
void RS232CForm::ShowStopBit() {
  const int framing = ParityCombo.Index();
  StopBitCombo.SetIndex(framing == ListBox::kNone ? ListBox::kNone
                                                  : FramingAt(framing).stop_bit - 1);
}

void RS232CForm::ShowTone() {
  Check1.SetChecked(configData->ModemTone());
  Check2.SetChecked(!configData->ModemTone());
}

void RS232CForm::Leave(PendingList& pending) {
  pending.take();
  pending.has_focus = false;
}

void RS232CForm::TakeMode() {
  configData->SetSatellite(RdsOptionCombo.Index() == kSatellite);
  configData->SetModem(RdsOptionCombo.Index() == kModem);
  UpdateEnabling();
}

void RS232CForm::TakeBurst() {
  if (Combo1.Index() != ListBox::kNone) {
    configData->SetBurst(static_cast<std::int16_t>(Combo1.Index() + kMinBurst));
  }
}

void RS232CForm::TakeBaudrate() {
  if (BaudrateCombo.Index() != ListBox::kNone) {
    configData->SetBaudrate(kBaudrates.at(static_cast<std::size_t>(BaudrateCombo.Index())));
  }
}

void RS232CForm::TakeParity() {
  // The stop bits of the record stay: AUTOSETTING alone stores them.
  if (ParityCombo.Index() != ListBox::kNone) {
    configData->SetParity(FramingAt(ParityCombo.Index()).parity);
    ShowStopBit();
  }
}

// Only when the port is opened.
void RS232CForm::TakeCommPort() {
  if (SerialCombo.Index() == ListBox::kNone) return;
  configData->SetCommPort(static_cast<std::int16_t>(SerialCombo.Index() + 1));
}

void RS232CForm::SwitchLanguage() {
  const int index = LanguageCombo.Index();
  if (index == ListBox::kNone || index == configData->LanguageDflt()) return;
  configData->SetLanguageDflt(static_cast<std::int16_t>(index));
  languageData->InitLanguage();
  InitCaptions();
  TheWaitForm().InitMask();
  main_menu_.init_main();
}

void RS232CForm::AutoSetting() {
  std::optional<PortChoice> found;
  WhileWaiting(window, [&] {
    found = FindCoder(main_menu_.port, [this](const PortChoice& choice) { ShowAttempt(choice); });
  });
  if (found) {
    configData->SetCommPort(found->number);
    configData->SetBaudrate(found->baudrate);
    configData->SetParity(found->parity);
    configData->SetStopBit(found->stop_bit);
  } else {
    ShowPortSettings();
  }
}

void RS232CForm::ShowAttempt(const PortChoice& choice) {
  SerialCombo.SetIndex(choice.number - 1);
  BaudrateCombo.SetIndex(BaudrateIndex(choice.baudrate));
  ParityCombo.SetIndex(FramingOf(choice.parity));
  ShowStopBit();
}

void RS232CForm::Hook() {
  Text1.SetText("");
  TakeCommPort();
  OpenLink(main_menu_.port);
  if (!LinkOpen) return;
  ModemDial(configData->ModemTel(), configData->ModemTone());
  configData->SetModemHookOn(true);
  OfferDialling(false);
  SerialCombo.SetEnabled(false);
}

void RS232CForm::HangUp() {
  WhileWaiting(window, ModemHangUp);
  configData->SetModemHookOn(false);
  OfferDialling(true);
  SerialCombo.SetEnabled(true);
}

void RS232CForm::ReadDialogue() {
  ShowDialogue(Text1.Text() + ReadReceivedText());
  configData->SetModemDlg(Text1.Text());
}

// With the caret at the end, where the modem's latest word is.
void RS232CForm::ShowDialogue(const std::string& text) {
  if (text == Text1.Text()) return;
  Text1.SetText(text);
  Text1.Select(static_cast<int>(text.size()), 0);
}

void RS232CForm::Unload() {
  window.SetEnabled(false);
  WhileWaiting(window, [this] {
    for (PendingList& pending : pending_) {
      if (pending.has_focus) Leave(pending);
    }
    // What comes from now on is the Coder's, not the modem's.
    Timer1.SetEnabled(false);
    TakeCommPort();
    OpenLink(main_menu_.port);
    if (Reach()) ProbeCoder();
    if (Reach()) main_menu_.reload_limits();
  });
}

}  // namespace corvalis
