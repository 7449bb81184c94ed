#include "programme/pin_tab.h"

#include <algorithm>
#include <string>
#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "config/programme_types.h"
#include "config/words.h"
#include "link/utility.h"
#include "platform/platform.h"
#include "programme/pin_data.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

enum Column { kName, kDay, kTime, kType = PinTab::kTypeColumn, kCode, kIssued };

constexpr int kDayDigits = 2;
constexpr int kTimeCharacters = 5;
constexpr std::int16_t kLastDay = 31;

std::string RowName(int row) { return "PIN " + Digits(row, 2); }

std::int16_t Index(int row) { return static_cast<std::int16_t>(row); }

// The entry of a type's name; kNone for a name that no type has.
int TypeOf(const std::string& name) {
  const auto& names = ProgramTypeNames();
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? ListBox::kNone : static_cast<int>(found - names.begin());
}

std::string PinCell(int row, int column) {
  const std::int16_t index = Index(row);
  switch (column) {
    case kName:
      return RowName(row);
    case kDay:
      return Digits(pinData->MonthDay(index), 1);
    case kTime:
      return TimeText(pinData->Time(index));
    case kType: {
      const std::int32_t type = pinData->ProgramType(index);
      return IsProgrammeType(type) ? ProgramTypeNames()[static_cast<std::size_t>(type)] : "";
    }
    case kCode:
      return PinCode(pinData->MonthDay(index), pinData->Time(index));
    default:
      return pinData->Issued(index) ? "Yes" : "No";
  }
}

std::vector<GridColumn> PinColumns() {
  using Kind = GridColumn::Kind;
  return {{.width = 8},
          {.kind = Kind::kText, .width = 5, .max_length = kDayDigits},
          {.kind = Kind::kText, .width = 7, .max_length = kTimeCharacters},
          {.kind = Kind::kText, .width = 28},
          {.width = 6},
          {.width = 7}};
}

}  // namespace

PinTab::PinTab(Window& window)
    : window_(window),
      DBGrid4(window, "DBGrid4", PinColumns()),
      buttons_(window,
               {.read_one = &Command6,
                .read_all = &Command23,
                .send_one = &Command8,
                .send_all = &Command15,
                .burst = &Command7},
               {.commit_one = true, .reads_to_column_0 = true},
               {{.count = [] { return pinData->MaxPinNum(); },
                 .read = [](int row) { pinData->GetOneRds(Index(row)); },
                 .send = [](int row) { pinData->SetOneRds(Index(row)); },
                 .grid = &DBGrid4}}) {
  DBGrid4.RowCount = [] { return static_cast<int>(pinData->MaxPinNum()); };
  DBGrid4.Cell = PinCell;
  DBGrid4.KeyPress = [this](int column, int& key) {
    if (key == kKeyBackspace) return;
    const TextBox& cell = DBGrid4.Editor();
    if (column == kTime && key == '.') key = ':';
    const int most = column == kDay ? kDayDigits : kTimeCharacters;
    if (cell.SelLength() == 0 && static_cast<int>(cell.Text().size()) >= most) RefuseKey(key);
  };
  DBGrid4.RowLeft = [this](int row) { return LeaveRow(row); };
  DBGrid4.Write = [this](int row, int column, const std::string& text) {
    Write(row, column, text);
  };
  DBGrid4.Moved = [this] {
    ShowSelected();
    FollowCell();
  };
  DBGrid4.Edited = [this] { ShowSelected(); };
  SetTypeRules();
}

// Day and time are taken together, or both are as they were.
bool PinTab::LeaveRow(int row) {
  const auto time = ParseTime(WithColons(DBGrid4.Shown(row, kTime)));
  const auto day = ParseDecimal<std::int16_t>(DBGrid4.Shown(row, kDay));
  if (!time || !day || *day < 1 || *day > kLastDay) {
    if (!time || !day || *day > kLastDay) Machine().dialogs->Beep();
    DBGrid4.DropEdit(kDay);
    DBGrid4.DropEdit(kTime);
  } else if (DBGrid4.HasEdit(kTime)) {
    DBGrid4.PutEdit(kTime, TimeText(*time));
  }
  return true;
}

void PinTab::Write(int row, int column, const std::string& text) {
  const std::int16_t index = Index(row);
  if (column == kDay) {
    const std::int16_t old = pinData->MonthDay(index);
    pinData->SetMonthDay(index, ParseDecimal<std::int16_t>(text).value_or(old));
  } else if (column == kTime) {
    pinData->SetTime(index, ParseTime(text).value_or(pinData->Time(index)));
  } else if (const int type = TypeOf(text); column == kType && type != ListBox::kNone) {
    pinData->SetProgramType(index, type);
  }
}

void PinTab::SetTypeRules() {
  Combo1.Fill(ProgramTypeNames());
  Combo1.SetVisible(false);
  // The type's cell is not typed into: a key or a second press goes to the list.
  DBGrid4.StartEdit = [this](int column, int /*key*/) {
    if (column != kType) return true;
    FollowCell();
    Combo1.SetFocus();
    return false;
  };
  DBGrid4.Scrolled = [this] { Combo1.SetVisible(false); };
  DBGrid4.LostFocus = [this] {
    if (window_.FocusTarget() != &Combo1) Combo1.SetVisible(false);
  };
  Combo1.LostFocus = [this] { Combo1.SetVisible(false); };
  Combo1.Click = [this] { ChooseType(); };
  Combo1.KeyPress = [this](int& key) {
    if (key != kKeyEscape) return;
    key = kKeyCancelled;
    DBGrid4.SetFocus();
  };
}

// The list is over the type's cell exactly while that is the current one.
void PinTab::FollowCell() {
  Combo1.SetVisible(false);  // it comes up anew where the cell is
  const bool here = DBGrid4.Column() == kType && DBGrid4.Row() != Grid::kNoRow;
  if (here) {
    following_ = true;
    Combo1.SetIndexOrNone(TypeOf(DBGrid4.Shown(DBGrid4.Row(), kType)));
    following_ = false;
  }
  Combo1.SetVisible(here);
}

void PinTab::ChooseType() {
  if (following_ || Combo1.Index() == ListBox::kNone) return;
  DBGrid4.PutEdit(kType, Combo1.Entry(Combo1.Index()));
  DBGrid4.SetFocus();
}

void PinTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  DBGrid4.SetHeadings(
      {"PIN", Word("Day"), Word("Time of day"), Word("Type"), Word("Code"), Word("Issued")});
  Command6.SetTexts(texts.PinReadKey(), texts.PinReadTip());
  Command23.SetTexts(texts.PinReadAllKey(), texts.PinReadAllTip());
  Command8.SetTexts(texts.PinSendOneKey(), texts.PinSendOneTip());
  Command15.SetTexts(texts.PinSendAllKey(), texts.PinSendAllTip());
  Command7.SetTexts(texts.PinSendAllBurstKey(), texts.PinSendAllBurstTip());
}

void PinTab::Open() {
  buttons_.Show();
  DBGrid4.Restart();
  ShowSelected();
  FollowCell();
}

void PinTab::ShowSelected() {
  PinSelectedLabel.SetCaption(WithUntaken(DBGrid4, RowName(DBGrid4.Row())));
}

}  // namespace corvalis
