#include "networks/ih_tab.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/joined_values.h"
#include "config/language_data.h"
#include "config/windows_1252.h"
#include "config/words.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr char kSeparator = kFieldSeparator.front();

std::int16_t Index(int value) { return static_cast<std::int16_t>(value); }

std::string WithoutFill(const std::string& page) {
  return page.substr(0, page.find_last_not_of(' ') + 1);
}

struct BoxTexts {
  std::string key, tip;
};

std::array<BoxTexts, IhTab::kBoxes> TextsOfBoxes(const LanguageData& texts) {
  return {{{texts.IhPage00Key(), texts.IhPage00Tip()},
           {texts.IhPage01Key(), texts.IhPage01Tip()},
           {texts.IhPage02Key(), texts.IhPage02Tip()},
           {texts.IhPage03Key(), texts.IhPage03Tip()},
           {texts.IhPage04Key(), texts.IhPage04Tip()},
           {texts.IhPage05Key(), texts.IhPage05Tip()},
           {texts.IhPage06Key(), texts.IhPage06Tip()},
           {texts.IhPage07Key(), texts.IhPage07Tip()},
           {texts.IhPage08Key(), texts.IhPage08Tip()},
           {texts.IhPage09Key(), texts.IhPage09Tip()},
           {texts.IhPage10Key(), texts.IhPage10Tip()},
           {texts.IhPage11Key(), texts.IhPage11Tip()},
           {texts.IhPage12Key(), texts.IhPage12Tip()},
           {texts.IhPage13Key(), texts.IhPage13Tip()},
           {texts.IhPage14Key(), texts.IhPage14Tip()}}};
}

}  // namespace

IhTab::IhTab(Window& window)
    : window_(window),
      buttons_(window,
               {.read_one = &Command13,
                .read_all = &Command7,
                .send_one = &Command11,
                .send_all = &Command1,
                .burst = &Command12},
               {},
               {{.count = [] { return ihData->PagesCount(); },
                 .selected =
                     [this] {
                       std::vector<int> ticked;
                       for (int i = 0; i < ihData->PagesCount(); ++i) {
                         if (Check1[i].Checked()) ticked.push_back(i);
                       }
                       return ticked;
                     },
                 .read = [](int page) { ihData->GetOneRds(Index(page)); },
                 .send = [](int page) { ihData->SetOneRds(Index(page)); },
                 .refresh = [this] { ShowPage(); }}}) {
  // Typing in the list of pages is dropped; so the list has no key rule.
  Combo1.LostFocus = [this] { LeavePages(); };
  RichTextBox1.Change = [this] {
    ihData->SetPage(page_, RichTextBox1.Text());
    ShowCount();
    ShowPath();  // what is in the file is another text now
  };
  SetFileRules();
}

void IhTab::SetFileRules() {
  Drive1.GotFocus = [this] { Drive1.Refresh(); };  // a medium may have come or gone
  Drive1.Click = [this] {
    if (showing_ || !Dir1.SetPath(Drive1.Drive())) return;
    ihData->SetDrive(page_, Drive1.Drive());
    TakeFolder();
  };
  Dir1.Click = [this] { ShowFiles(); };
  Dir1.Change = [this] {
    File1.SetPath(Dir1.Path());
    if (!showing_) TakeFolder();
  };
  File1.DoubleClick = [this] { TakeFile(); };
  // The station's file has the name between two of these.
  Text105.Change = [this] {
    std::string name = Text105.Text();
    const int caret = Text105.SelStart();
    const auto dropped = static_cast<int>(std::erase(name, kSeparator));
    if (dropped == 0) return;
    Machine().dialogs->Beep();
    Text105.SetText(name);
    Text105.Select(std::max(caret - dropped, 0), 0);
  };
  Text105.LostFocus = [this] { LeaveName(); };
  Command15.Click = [this] { ReadFile(); };
  Command16.Click = [this] { WriteFile(); };
  Command8.Click = [this] {
    ihData->SetPage(page_, IhData::NewPage());
    ShowPage();
  };
}

void IhTab::TakeFolder() {
  ihData->SetPath(page_, Dir1.Path());
  ShowFiles();
  ShowPath();
  LookIntoFile();
}

void IhTab::TakeFile() {
  if (File1.FileName().find(kSeparator) != std::string::npos) return Machine().dialogs->Beep();
  Text105.SetText(File1.FileName());
  ihData->SetDrive(page_, Drive1.Drive());
  ihData->SetPath(page_, File1.Path());
  LeaveName();
}

void IhTab::LeaveName() {
  ihData->SetFileName(page_, Text105.Text());
  File1.Match(Text105.Text());
  ShowPath();
  LookIntoFile();
}

void IhTab::LeavePages() {
  const int chosen = Combo1.Index();
  if (chosen >= 0 && chosen < ihData->PagesCount() && chosen != page_) GoTo(Index(chosen));
}

void IhTab::ReadFile() {
  if (ihData->ReadFile(page_)) ShowPage();
  ShowFiles();  // a missing file has been made
  LookIntoFile();
}

void IhTab::WriteFile() {
  const bool written = ihData->WriteFile(page_);
  ShowFiles();
  ShowPath();
  const std::string how = written ? Word("written")
                          : ihData->NamesStationsFile(page_)
                              ? Word("not written: the station's own")
                              : Word("not written");
  PathLabel.SetCaption(PathLabel.Caption() + "  (" + Utf8From1252(how) + ")");
  LookIntoFile();
}

void IhTab::GoTo(std::int16_t page) {
  page_ = page;
  Combo1.SetIndex(page);
  Text105.SetText(ihData->FileName(page));
  ShowFolder();
  ShowFiles();
  ShowPage();
  ShowPath();
  LookIntoFile();
}

// Shows where the page's file is, and leaves the page as it is. If there is no such folder, as for
// a path of another system, the lists show that of the station's file; the path below them tells.
void IhTab::ShowFolder() {
  showing_ = true;
  Drive1.Refresh();
  if (!Dir1.SetPath(ihData->Path(page_))) Dir1.SetPath(configData->Path());
  Drive1.SetDrive(Dir1.Path());
  showing_ = false;
}

void IhTab::ShowFiles() {
  File1.Refresh();
  File1.Match(ihData->FileName(page_));
}

void IhTab::ShowPage() {
  RichTextBox1.SetText(WithoutFill(ihData->Page(page_)));
  ShowCount();
}

void IhTab::ShowCount() {
  std::string count =
      Word("%1 of %2", {std::to_string(RichTextBox1.Text().size()), std::to_string(kIhCharacters)});
  if (ihData->Page(page_) != in_file_) count += ", " + Word("not in its file");
  CountLabel.SetCaption(count);
}

// A file may lie far away: it is not looked at while somebody types.
void IhTab::LookIntoFile() {
  in_file_ = ihData->PageInFile(page_);
  ShowCount();
}

void IhTab::ShowPath() { PathLabel.SetCaption(ihData->FullName(page_)); }

void IhTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  const auto boxes = TextsOfBoxes(texts);
  for (int i = 0; i < kBoxes; ++i) {
    const BoxTexts& one = boxes.at(static_cast<std::size_t>(i));
    Check1[i].SetTexts(one.key, one.tip);
  }
  Combo1.SetToolTip(texts.IhComboTip());
  RichTextBox1.SetToolTip(texts.IhWorksheetTip());
  Drive1.SetToolTip(texts.IhDriveTip());
  Dir1.SetToolTip(texts.IhDirTip());
  File1.SetToolTip(texts.IhPageNameTip());
  Text105.SetToolTip(texts.IhPageNameTip());
  Command15.SetTexts(texts.IhReadPageKey(), texts.IhReadPageTip());
  Command16.SetTexts(texts.IhWritePageKey(), texts.IhWritePageTip());
  Command8.SetTexts(texts.IhNewKey(), texts.IhNewTip());
  Command13.SetTexts(texts.IhReadSelKey(), texts.IhReadSelTip());
  Command7.SetTexts(texts.IhReadAllKey(), texts.IhReadAllTip());
  Command11.SetTexts(texts.IhSendSelKey(), texts.IhSendSelTip());
  Command1.SetTexts(texts.IhSendAllKey(), texts.IhSendAllTip());
  Command12.SetTexts(texts.IhSendAllBurstKey(), texts.IhSendAllBurstTip());
}

void IhTab::Open() {
  buttons_.Show();
  Combo1.Clear();
  for (int i = 0; i < ihData->PagesCount(); ++i) Combo1.Add("Page" + Digits(i, 2));
  for (int i = 0; i < kBoxes; ++i) {
    Check1[i].SetChecked(false);
    Check1[i].SetEnabled(i < ihData->PagesCount());
  }
  GoTo(0);
}

}  // namespace corvalis
