#include "programme/psn_plan_tab.h"

#include <cstddef>
#include <optional>

#include "config/conversions.h"
#include "config/language_data.h"
#include "config/words.h"
#include "platform/platform.h"
#include "programme/psn_page_data.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

enum Column { kRow, kTime, kDate, kMonday, kSunday = kMonday + kWeekdays - 1, kPage, kEnable };

constexpr std::size_t kTimeCharacters = 5;
constexpr std::size_t kDateCharacters = 10;
constexpr const char* kNoTime = "00:00";
constexpr const char* kNoDate = "00-00-0000";

std::string RowName(int row) { return Digits(row, 3); }

bool IsDigit(int key) { return key >= '0' && key <= '9'; }

std::vector<GridColumn> PlanColumns() {
  using Kind = GridColumn::Kind;
  std::vector<GridColumn> columns{
      {.width = 4},
      {.kind = Kind::kText, .width = 6, .max_length = kTimeCharacters},
      {.kind = Kind::kText, .width = 11, .max_length = kDateCharacters}};
  for (int day = kMonday; day < kPage; ++day)
    columns.push_back({.kind = Kind::kButton, .width = 4});
  columns.push_back({.kind = Kind::kText, .width = 5, .max_length = 1});
  columns.push_back({.kind = Kind::kButton, .width = 6});
  return columns;
}

std::string PlanCell(int row, int column) {
  const auto index = static_cast<std::int16_t>(row);
  switch (column) {
    case kRow:
      return RowName(row);
    case kTime:
      return psnPageData->Time(index);
    case kDate:
      return psnPageData->TimeDate(index);
    case kPage:
      return Digits(psnPageData->Page(index), 1);
    case kEnable:
      return std::string(OnOff(psnPageData->Enable(index)));
    default:
      return std::string(OnOff(psnPageData->Weekday(index, column - kMonday)));
  }
}

void WritePlanCell(int row, int column, const std::string& text) {
  const auto index = static_cast<std::int16_t>(row);
  const bool on = text == OnOff(true);
  if (column == kTime) {
    psnPageData->SetTime(index, text);
  } else if (column == kDate) {
    psnPageData->SetTimedate(index, text);
  } else if (column == kPage) {
    const auto page = ParseDecimal<std::int16_t>(text).value_or(psnPageData->Page(index));
    psnPageData->SetPage(index, static_cast<std::uint8_t>(page));
  } else if (column == kEnable) {
    psnPageData->SetEnable(index, on);
  } else {
    psnPageData->SetWeekday(index, column - kMonday, on);
  }
}

std::string DateText(std::chrono::year_month_day date) {
  return Digits(static_cast<int>(static_cast<unsigned>(date.day())), 2) + "-" +
         Digits(static_cast<int>(static_cast<unsigned>(date.month())), 2) + "-" +
         Digits(static_cast<int>(date.year()), 4);
}

}  // namespace

PsnPlanTab::PsnPlanTab(Window& window)
    : window_(window),
      PsnPlanDBGrid(window, "PsnPlanDBGrid", PlanColumns()),
      buttons_(
          window,
          {.read_one = &ReadPlanCommand,
           .read_all = &ReadAllPlanCommand,
           .send_one = &SendPlanCommand,
           .send_all = &SendAllPlanCommand,
           .burst = &SendBurstPlanCommand},
          {.pause_send = 0.2F,
           .pause_burst = 0.2F,
           .extra_passes = 1,
           .commit_one = true,
           .commit_all = true,
           .commit_burst = true,
           .keep_row_0 = false,
           .reads_to_column_0 = true},
          {{.count = [] { return psnPageData->MaxPsnPlanNum(); },
            .read = [](int row) { psnPageData->GetOneRdsPlan(static_cast<std::int16_t>(row)); },
            .send = [](int row) { psnPageData->SetOneRdsPlan(static_cast<std::int16_t>(row)); },
            .grid = &PsnPlanDBGrid}}) {
  PsnPlanDBGrid.RowCount = [] { return static_cast<int>(psnPageData->MaxPsnPlanNum()); };
  PsnPlanDBGrid.Cell = PlanCell;
  PsnPlanDBGrid.Write = WritePlanCell;
  PsnPlanDBGrid.CellLeft = LeaveCell;
  PsnPlanDBGrid.RowLeft = [this](int row) { return LeaveRow(row); };
  PsnPlanDBGrid.ButtonClick = [this](int column) { Toggle(column); };
  PsnPlanDBGrid.Moved = [this] { ShowSelected(); };
  SetTypingRules();
}

void PsnPlanTab::SetTypingRules() {
  PsnPlanDBGrid.StartEdit = [](int /*column*/, int key) {
    return IsDigit(key) || key == kKeyBackspace || key == '.';
  };
  PsnPlanDBGrid.KeyPress = [this](int column, int& key) {
    if (column == kTime) TypeTime(key);
    if (column == kDate) TypeDate(key);
    if (column == kPage && key != kKeyBackspace && !IsDigit(key)) key = kKeyCancelled;
  };
}

namespace {

// Puts a separator behind the text of the open cell.
void Append(TextBox& cell, const char* separator) {
  cell.SetText(cell.Text() + separator);
  cell.Select(static_cast<int>(cell.Text().size()), 0);
}

bool Continues(const TextBox& cell, int key) {
  return cell.SelLength() == 0 && (IsDigit(key) || key == kKeyBackspace);
}

}  // namespace

void PsnPlanTab::TypeTime(int key) {
  TextBox& cell = PsnPlanDBGrid.Editor();
  const bool hour_stands = cell.Text().size() == 2 && cell.Text().find(':') == std::string::npos;
  if (hour_stands && Continues(cell, key)) Append(cell, ":");
}

void PsnPlanTab::TypeDate(int key) {
  TextBox& cell = PsnPlanDBGrid.Editor();
  const std::string& text = cell.Text();
  const bool day_stands = text.size() == 2 && text.find('-') == std::string::npos;
  const bool month_stands = text.size() == 5 && text.find('-', 3) == std::string::npos;
  if ((day_stands || month_stands) && Continues(cell, key)) Append(cell, "-");
  // A date excludes weekdays.
  for (int day = kMonday; day <= kSunday; ++day) {
    PsnPlanDBGrid.PutEdit(day, std::string(OnOff(false)));
  }
}

Grid::Leave PsnPlanTab::LeaveCell(int column, std::string& text) {
  if (column == kTime && (text.size() == 4 || text.size() == 5)) {
    const auto time = ParseTime(WithColons(text));
    text = time ? TimeText(*time) : kNoTime;
    return Grid::Leave::kTake;
  }
  if (column == kDate && text.size() >= 6 && text.size() <= kDateCharacters) {
    const auto date = ParseDate(text);
    text = date ? DateText(*date) : kNoDate;
    return Grid::Leave::kTake;
  }
  if (column == kPage && text.size() == 1) {
    const auto page = ParseDecimal<std::int16_t>(text);
    if (page && *page < psnPageData->MaxPsnPageNum()) return Grid::Leave::kTake;
  }
  return Grid::Leave::kRestore;
}

void PsnPlanTab::Toggle(int column) {
  Grid& grid = PsnPlanDBGrid;
  grid.PutEdit(column, std::string(OnOff(grid.Shown(grid.Row(), column) != OnOff(true))));
  // Weekdays exclude a date.
  if (column >= kMonday && column <= kSunday) grid.PutEdit(kDate, kNoDate);
}

bool PsnPlanTab::LeaveRow(int row) {
  if (!PsnPlanDBGrid.Shown(row, kRow).empty()) return true;
  Machine().dialogs->Show({.text = "Immettere un valore nella seconda colonna",
                           .title = "PSN",
                           .style = BoxStyle::kInformation,
                           .help_file = {}});
  return false;
}

void PsnPlanTab::ShowSelected() { PlanSelectedLabel.SetCaption(RowName(PsnPlanDBGrid.Row())); }

void PsnPlanTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  PsnPlanDBGrid.SetHeadings({Word("Row"), Word("Time of day"), Word("Date"), Word("Mon"),
                             Word("Tue"), Word("Wed"), Word("Thu"), Word("Fri"), Word("Sat"),
                             Word("Sun"), Word("Page"), Word("Enable")});
  ReadPlanCommand.SetTexts(texts.PsnPlanReadOneKey(), texts.PsnPlanReadOneTip());
  ReadAllPlanCommand.SetTexts(texts.PsnPlanReadAllKey(), texts.PsnPlanReadAllTip());
  SendPlanCommand.SetTexts(texts.PsnPlanSendOneListKey(), texts.PsnPlanSendOneListTip());
  SendAllPlanCommand.SetTexts(texts.PsnPlanSendAllListKey(), texts.PsnPlanSendAllListTip());
  SendBurstPlanCommand.SetTexts(texts.PsnPlanSendAllBurstKey(), texts.PsnPlanSendAllBurstTip());
}

void PsnPlanTab::Open() {
  buttons_.Show();
  PsnPlanDBGrid.Restart();
  ShowSelected();
}

}  // namespace corvalis
