#include "programme/psn_tab.h"

#include <algorithm>
#include <utility>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/language_data.h"
#include "config/words.h"
#include "link/link_error.h"
#include "link/list_commands.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "link/utility.h"
#include "programme/active_psn.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

enum Column { kName, kRotation, kText, kActive };

constexpr int kRotationDigits = 2;
constexpr int kScrollDigits = 2;
constexpr int kMaxScrollTime = 99;

std::string RowName(int row) { return "PSN " + Digits(row, 2); }

std::string OnText(bool active) { return active ? "ON" : "Off"; }

// The number in a box; 0 if there is none.
int ValueOf(const TextBox& box) { return ParseDecimal<std::int32_t>(box.Text()).value_or(0); }

}  // namespace

PsnTab::PsnTab(Window& window)
    : window_(window),
      DBGrid1(window, "DBGrid1",
              {{.width = 8},
               {.kind = GridColumn::Kind::kText, .width = 6, .max_length = kRotationDigits},
               {.kind = GridColumn::Kind::kText,
                .width = kPsnCharacters + 2,
                .max_length = kPsnCharacters,
                .every_place = true},
               {.kind = GridColumn::Kind::kButton}}),
      // The runs go over the plain list's count on the pages too.
      buttons_(window,
               {.read_one = &Command19,
                .read_all = &Command20,
                .send_one = &Command17,
                .send_all = &Command16,
                .burst = &Command18},
               {.commit_one = true, .commit_all = true, .reads_to_column_0 = true},
               {{.count = [] { return std::min(psnData->MaxPsnNum(), ActivePsn::Rows()); },
                 .read = ActivePsn::GetOneRds,
                 .send = ActivePsn::SetOneRds,
                 .refresh = [this] { ShowSelected(); },
                 .grid = &DBGrid1}}) {
  SetGridRules();
  SetScrollRules();
  SetPageRules();
}

void PsnTab::SetGridRules() {
  DBGrid1.RowCount = [] { return static_cast<int>(ActivePsn::Rows()); };
  DBGrid1.Cell = [](int row, int column) -> std::string {
    switch (column) {
      case kName:
        return RowName(row);
      case kRotation:
        return Digits(ActivePsn::RotationTime(row), 1);
      case kText:
        return ActivePsn::Data(row);
      default:
        return OnText(ActivePsn::Active(row));
    }
  };
  DBGrid1.KeyPress = [this](int column, int& key) {
    if (key == kKeyBackspace) return;
    const TextBox& cell = DBGrid1.Editor();
    const int most = column == kText ? kPsnCharacters : kRotationDigits;
    const bool full = cell.SelLength() == 0 && static_cast<int>(cell.Text().size()) >= most;
    const bool no_digit = column == kRotation && key >= ' ' && (key < '0' || key > '9');
    if (full || no_digit) RefuseKey(key);
  };
  DBGrid1.ButtonClick = [this](int column) {
    DBGrid1.PutEdit(column, OnText(DBGrid1.Shown(DBGrid1.Row(), column) != OnText(true)));
  };
  DBGrid1.RowLeft = [this](int row) {
    CheckRotation(row);
    return true;
  };
  DBGrid1.Write = [](int row, int column, const std::string& text) {
    if (column == kRotation) {
      if (const auto time = ParseDecimal<std::int16_t>(text))
        ActivePsn::SetRotationTime(row, *time);
    } else if (column == kText) {
      ActivePsn::SetData(row, text);
    } else {
      ActivePsn::SetActive(row, text == OnText(true));
    }
  };
  DBGrid1.Moved = [this] { ShowSelected(); };
  DBGrid1.Edited = [this] { ShowSelected(); };
}

// A time that is none goes back to that of the plain list, on the pages too.
void PsnTab::CheckRotation(int row) {
  const auto time = ParseDecimal<std::int16_t>(DBGrid1.Shown(row, kRotation));
  if (time && Narrow<std::uint8_t>(*time)) return;
  const bool in_list = row < psnData->MaxPsnNum();
  const auto index = static_cast<std::int16_t>(row);
  const int old = in_list ? psnData->RotationTime(index) : ActivePsn::RotationTime(row);
  DBGrid1.PutEdit(kRotation, Digits(old, 1));
}

void PsnTab::ShowSelected() {
  PsnSelectedLabel.SetCaption(WithUntaken(DBGrid1, RowName(DBGrid1.Row())));
  PsnRadioLabel.SetCaption(TypedText(DBGrid1, kText));
}

void PsnTab::SetScrollRules() {
  const auto digits_alone = [](int& key) {
    if (key < '0' || key > '9') key = kKeyCancelled;  // back space too
  };
  Text13.KeyPress = digits_alone;
  Text14.KeyPress = digits_alone;
  Text11.Change = [this] { FitScrollText(); };
  Text12.Change = [this] { TakeScrollRow(Text12, ActivePsn::SetScrollFrom); };
  Text13.Change = [this] { TakeScrollRow(Text13, ActivePsn::SetScrollTo); };
  Text14.Change = [this] { TakeScrollTime(); };
  for (TextBox* box : {&Text12, &Text13, &Text14}) {
    box->LostFocus = [this] { ShowScroll(); };  // what is no number of a row has not been taken
  }
  Command24.Click = [this] { ApplyScrollText(); };
}

// No more characters than the run has rows.
void PsnTab::FitScrollText() {
  const int rows = ValueOf(Text13) - ValueOf(Text12) + 1;
  const auto most = static_cast<std::size_t>(std::max(rows, 0));
  if (Text11.Text().size() <= most) return;
  Text11.SetText(Text11.Text().substr(0, most));
  Text11.Select(static_cast<int>(most), 0);
}

void PsnTab::TakeScrollRow(TextBox& box, void (*set)(std::uint8_t)) {
  if (showing_) return;
  std::string text = box.Text().substr(0, kScrollDigits);
  const auto value = ParseDecimal<std::int16_t>(text);
  if (value && *value >= ActivePsn::Rows()) text = Digits(ActivePsn::Rows() - 1, 1);
  if (text != box.Text()) {
    box.SetText(text);  // and back here
    box.Select(static_cast<int>(text.size()), 0);
    return;
  }
  const auto row = value ? Narrow<std::uint8_t>(*value) : std::nullopt;
  if (!row) return;
  set(*row);
  FitScrollText();
}

void PsnTab::TakeScrollTime() {
  if (showing_) return;
  std::string text = Text14.Text().substr(0, kScrollDigits);
  const auto value = ParseDecimal<std::int16_t>(text);
  if (value && (*value < 1 || *value > kMaxScrollTime)) text = Digits(ActivePsn::ScrollTime(), 1);
  if (text != Text14.Text()) {
    Text14.SetText(text);  // and back here, unless the time kept is none either
    Text14.Select(static_cast<int>(text.size()), 0);
  } else if (value && *value >= 1 && *value <= kMaxScrollTime) {
    ActivePsn::SetScrollTime(static_cast<std::uint8_t>(*value));
  }
}

void PsnTab::ShowScroll() {
  const bool was_showing = std::exchange(showing_, true);
  Text12.SetText(Digits(ActivePsn::ScrollFrom(), 1));
  Text13.SetText(Digits(ActivePsn::ScrollTo(), 1));
  Text14.SetText(Digits(ActivePsn::ScrollTime(), 1));
  showing_ = was_showing;
}

void PsnTab::ApplyScrollText() {
  CommitGridRow(DBGrid1);
  const std::string blanks(kPsnCharacters, ' ');
  const int length = static_cast<int>(Text11.Text().size());
  const int from = ValueOf(Text12);
  const int to = std::min(ValueOf(Text13), ActivePsn::Rows() - 1);
  const auto time = static_cast<std::int16_t>(ValueOf(Text14));
  for (int row = std::max(from, 0); row <= to; ++row) {
    const int shown = row - from + 1;
    const bool active = shown <= length;
    const std::string moved =
        blanks + Text11.Text().substr(0, static_cast<std::size_t>(active ? shown : 0));
    ActivePsn::SetData(row, moved.substr(moved.size() - blanks.size()));
    ActivePsn::SetActive(row, active);
    ActivePsn::SetRotationTime(row, time);
  }
  DBGrid1.Refresh();
  DBGrid1.SetFirstRow(from);
  ShowSelected();
}

void PsnTab::SetPageRules() {
  PageNumberScroll.StepUp = [this] { TurnPage(+1); };
  PageNumberScroll.StepDown = [this] { TurnPage(-1); };
  PageNumberText.KeyPress = [this](int& key) {
    const int page = std::exchange(key, kKeyCancelled) - '0';
    if (page < 0 || page >= psnPageData->MaxPsnPageNum()) return;
    CommitGridRow(DBGrid1);
    psnPageData->SetCurrentPage(static_cast<std::uint8_t>(page));
    ShowPage();
  };
  // The box says which page stands in the grid, whatever else is done to it.
  PageNumberText.Change = [this] { PageNumberText.SetText(Digits(psnPageData->CurrentPage(), 1)); };
  ReadPsnActiveButton.Click = [this] { RunRead(window_, [this] { ReadActive(); }); };
  const auto send = [] { PsnPageData::SetOnePageActive(psnPageData->CurrentPage()); };
  SendPsnActiveButton.Click = [this, send] { RunSend(window_, send); };
  SendPsnActiveBurstButton.Click = [this, send] { RunBurst(window_, configData->Burst(), send); };
}

void PsnTab::TurnPage(int step) {
  CommitGridRow(DBGrid1);
  const int pages = psnPageData->MaxPsnPageNum();
  psnPageData->SetCurrentPage(
      static_cast<std::uint8_t>((psnPageData->CurrentPage() + pages + step) % pages));
  ShowPage();
}

void PsnTab::ShowPage() {
  PageNumberText.SetText(Digits(psnPageData->CurrentPage(), 1));
  DBGrid1.Refresh();
  ShowSelected();
}

void PsnTab::ReadActive() {
  CommitGridRow(DBGrid1);  // before its page goes
  psnPageData->GetOnePageActive();
  if (LinkError == kLinkOk) ShowPage();
}

void PsnTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  Text10.SetTexts(texts.PsnPageKey(), texts.PsnPageTip());
  PageNumberText.SetToolTip(texts.PsnPageTip());
  PageNumberScroll.SetToolTip(texts.PsnPageTip());
  DBGrid1.SetHeadings({"PSN", Word("Time"), Word("Text"), Word("Active")});
  ScrollTextLabel.SetCaption(Word("Text"));
  ScrollFromLabel.SetCaption(Word("From row"));
  ScrollToLabel.SetCaption(Word("To row"));
  ScrollTimeLabel.SetCaption(Word("Time"));
  Command24.SetTexts(texts.PsnScrollTextKey(), texts.PsnScrollTextTip());
  Text11.SetToolTip(texts.PsnScrollTextTip());
  Command19.SetTexts(texts.PsnReadOneKey(), texts.PsnReadOneTip());
  Command20.SetTexts(texts.PsnReadAllKey(), texts.PsnReadAllTip());
  Command17.SetTexts(texts.PsnSendOneListKey(), texts.PsnSendOneListTip());
  Command16.SetTexts(texts.PsnSendAllListKey(), texts.PsnSendAllListTip());
  Command18.SetTexts(texts.PsnSendAllBurstKey(), texts.PsnSendAllBurstTip());
  ReadPsnActiveButton.SetTexts(texts.PsnReadActiveKey(), texts.PsnReadActiveTip());
  SendPsnActiveButton.SetTexts(texts.PsnSendActiveKey(), texts.PsnSendActiveTip());
  SendPsnActiveBurstButton.SetTexts(texts.PsnSendActiveBurstKey(), texts.PsnSendActiveBurstTip());
}

void PsnTab::Open() {
  const bool pages = configData->PsnPagesEnable();
  buttons_.Show();
  ShowTransferButtons({{&ReadPsnActiveButton}, {&SendPsnActiveButton}, {&SendPsnActiveBurstButton}},
                      pages);
  Text10.SetVisible(pages);
  PageNumberText.SetVisible(pages);
  PageNumberScroll.SetVisible(pages);
  ShowScroll();
  Text11.SetText("");
  PageNumberText.SetText(Digits(psnPageData->CurrentPage(), 1));
  DBGrid1.Restart();
  ShowSelected();
}

}  // namespace corvalis
