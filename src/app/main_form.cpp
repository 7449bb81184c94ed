#include "app/main_form.h"

#include <chrono>
#include <string>

#include "app/link_words.h"
#include "busy/transfer_bracket.h"
#include "busy/wait_form.h"
#include "config/config_data.h"
#include "config/conversions.h"
#include "config/language_data.h"
#include "config/windows_1252.h"
#include "config/words.h"
#include "link/serial_management.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr const char* kDesignCaption =
    "  Main Menu                                 -CORVALIS-        ";
constexpr const char* kVersion = "V" CORVALIS_VERSION;

std::string WithExtension(const std::string& name, const char* extension) {
  return name.ends_with(extension) ? name : name + extension;
}

std::string TimeOfDay(DateTime when) {
  const std::chrono::hh_mm_ss time{when - std::chrono::floor<std::chrono::days>(when)};
  return Digits(static_cast<int>(time.hours().count()), 2) + ":" +
         Digits(static_cast<int>(time.minutes().count()), 2) + ":" +
         Digits(static_cast<int>(time.seconds().count()), 2);
}

}  // namespace

MainForm::MainForm() : MSComm1(*Machine().port) {
  Timer1.SetEnabled(false);
  Text_KOR.SetCaption("KOR");
  Text_KOR.SetVisible(false);
  MSComm1.CommEventRaised = OnComm;
  window.Unloading = [this] { Unload(); };
  // Whatever changes the link does it while this screen is disabled, itself or under another.
  window.Resumed = [this] {
    LinkLabel.SetCaption(LinkInWords(MSComm1));
    FindChanges();
  };
  TransferEnded = [this] { FindChanges(); };

  Drive1.GotFocus = [this] { Drive1.Refresh(); };  // a medium may have come or gone
  Drive1.Click = [this] { DriveChanged(); };
  Dir1.Click = [this] { File1.Refresh(); };
  Dir1.Change = [this] { DirChanged(); };
  File1.Click = [this] { FileClicked(); };
  File1.PathChange = [this] { File1.Refresh(); };
  Text105.Change = [this] { ShowPath(); };
  Text105.LostFocus = [this] { CompleteFileName(); };
  NewButton.Click = [this] { New(); };
  OpenButton.Click = [this] { Open(); };
  SaveButton.Click = [this] { Save(); };

  RS232CButton.Click = [this] {
    OpenScreen(rs232c_, RS232CForm::MainMenu{.window = window,
                                             .port = MSComm1,
                                             .init_main = [this] { InitMain(); },
                                             .reload_limits = [this] { globals_.LoadLimits(); }});
  };
  ConnectionButton.Click = [this] { OpenScreen(connection_, window); };
  TaPtyMsButton.Click = [this] { OpenScreen(ta_pty_ms_, window); };
  PsnRtPinAfButton.Click = [this] { OpenScreen(psn_rt_pin_af_, window); };
  CtTpDiPiButton.Click = [this] { OpenScreen(ct_tp_di_pi_, window); };
  EonLiButton.Click = [this] { OpenScreen(eon_li_, window); };
  TdcIhButton.Click = [this] { OpenScreen(tdc_ih_, window); };
  EditGroupsButton.Click = [this] { OpenScreen(edit_groups_, window); };
}

MainForm::~MainForm() {
  TransferEnded = nullptr;
  MSComm1.CommEventRaised = nullptr;
  ReleaseLink();
  ReleaseWaitForm();
}

void MainForm::Load() {
  window.SetEnabled(false);
  window.Show();
  window.SetCaption(std::string(kDesignCaption) + kVersion);
  globals_.CreateConfigData();
  InitMain();
  ShowWait();
  OpenLink(MSComm1);
  if (!configData->Modem() && LinkOpen) ProbeCoder();
  ShowFolder();
  ShowFile();
  EnableServices();
  AddressSent = false;
  globals_.CreateDataClasses();
  Given(nullptr);
  HideWait();
  FocusBack();
}

void MainForm::InitMain() {
  marks.Follow();
  Text_KOR.SetVisible(configData->KOR());
  globals_.CreateLanguageData();
  const LanguageData& texts = *languageData;
  RS232CButton.SetTexts(texts.MainSetupKey(), texts.MainSetupTip());
  ConnectionButton.SetTexts(texts.MainConnectionKey(), texts.MainConnectionTip());
  TaPtyMsButton.SetTexts(texts.MainTAKey(), texts.MainTATip());
  EditGroupsButton.SetTexts(texts.MainGroupKey(), texts.MainGroupTip());
  CtTpDiPiButton.SetTexts(texts.MainClockKey(), texts.MainClockTip());
  PsnRtPinAfButton.SetTexts(texts.MainPSNKey(), texts.MainPSNTip());
  EonLiButton.SetTexts(texts.MainEONKey(), texts.MainEONTip());
  TdcIhButton.SetTexts(texts.MainTDCKey(), texts.MainTDCTip());
  NewButton.SetTexts(texts.MainNewKey(), texts.MainNewTip());
  OpenButton.SetTexts(texts.MainOpenKey(), texts.MainOpenTip());
  SaveButton.SetTexts(texts.MainSaveKey(), texts.MainSaveTip());
  Text105.SetToolTip(texts.MainFileNameBoxTip());
  Drive1.SetToolTip(texts.MainDriverBoxTip());
  Dir1.SetToolTip(texts.MainDirListBoxTip());
  File1.SetToolTip(texts.MainFileListBoxTip());
  if (LanguageRead) LanguageRead();
}

void MainForm::New() {
  window.SetEnabled(false);
  ShowWait();
  configData->GetIniFile();
  globals_.LoadForNew();
  Given(&NewButton);
  ShowFolder();  // Save must not write over the file that was open
  ShowFile();
  HideWait();
  EditGroupsButton.SetEnabled(false);
  FocusBack();
}

void MainForm::Open() {
  window.SetEnabled(false);
  configData->SetFile(Text105.Text());
  configData->GetIni();
  languageData->InitLanguage();
  InitMain();
  TheWaitForm().InitMask();
  ShowWait();
  OpenLink(MSComm1);
  if (LinkOpen) ProbeCoder();
  globals_.LoadForOpen();
  Given(&OpenButton);
  EnableServices();
  ShowFile();
  HideWait();
  FocusBack();
}

void MainForm::Save() {
  window.SetEnabled(false);
  ShowWait();
  configData->SetFile(Text105.Text());
  ProfileStore::Series series(*Machine().profiles);
  globals_.Store();
  if (series.Finish()) {
    saved_ = Saved{SavePath(), Machine().clock->Now()};
    Given(&SaveButton);
  }
  ShowFile();
  HideWait();
  FocusBack();
}

void MainForm::Unload() {
  window.SetEnabled(false);
  if (configData->Modem() ? configData->ModemHookOn() : LinkOpen) {
    ShowWait();  // a Coder that has gone silent keeps the operator waiting
    SendEnq();
    HideWait();
  }
  ReleaseLink();
  globals_.Release();
  if (Ended) Ended();
}

void MainForm::DriveChanged() {
  if (!Dir1.SetPath(Drive1.Drive())) return;
  configData->SetDrive(Drive1.Drive());
}

void MainForm::DirChanged() {
  File1.SetPath(Dir1.Path());
  MatchFile();
  configData->SetPath(Dir1.Path());
  ShowPath();
}

void MainForm::FileClicked() {
  configData->SetFile(File1.FileName());
  Text105.SetText(configData->File());
}

void MainForm::CompleteFileName() { Text105.SetText(WithExtension(Text105.Text(), kExtension)); }

std::string MainForm::SavePath() const {
  const std::string& folder = configData->Path();
  return folder + (folder == "/" ? "" : "/") + WithExtension(Text105.Text(), kExtension);
}

void MainForm::ShowFolder() {
  // Choosing a place goes to its top, and takes the record along.
  const std::string path = configData->Path();
  Drive1.Refresh();
  Drive1.SetDrive(path);
  if (Dir1.SetPath(path)) {
    configData->SetPath(path);
  } else if (!Dir1.Path().empty()) {
    // There is no such folder. Save is to write where the panel is then, not into nowhere.
    configData->SetDrive(Drive1.Drive());
    configData->SetPath(Dir1.Path());
  }
}

void MainForm::ShowFile() {
  Text105.SetText(configData->File());
  File1.Refresh();
  MatchFile();
  ShowPath();
}

// Leaves `Text105` alone: a name that was typed goes along into another folder.
void MainForm::MatchFile() { File1.Match(configData->File()); }

void MainForm::ShowPath() {
  const std::string path = SavePath();
  std::string told;
  if (saved_ && saved_->path == path) told = Word("saved %1", {TimeOfDay(saved_->when)});
  if (changed_) {
    if (!told.empty()) told += ", ";
    told += given_by_ == nullptr ? Word("changed since the start")
                                 : Word("changed since the last %1", {given_by_->Caption()});
  }
  PathLabel.SetCaption(told.empty() ? path : path + "  (" + Utf8From1252(told) + ")");
}

void MainForm::Given(const Button* by) {
  given_ = globals_.WouldStore();
  given_by_ = by;
  changed_ = false;
}

void MainForm::FindChanges() {
  changed_ = globals_.WouldStore() != given_;
  ShowPath();
}

void MainForm::EnableServices() {
  EditGroupsButton.SetEnabled(configData->GroupsEnable());
  EonLiButton.SetEnabled(configData->EonEnable());
}

void MainForm::ShowWait() { TheWaitForm().window.Show(&window); }

void MainForm::HideWait() { TheWaitForm().window.Hide(); }

void MainForm::FocusBack() {
  window.SetEnabled(true);
  window.SetFocus();
}

}  // namespace corvalis
