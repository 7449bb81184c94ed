#include "networks/tmc_tab.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "networks/tmc_data.h"
#include "platform/platform.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

enum Column { kNumber, kLocation, kEvent, kDuration, kDirection, kExtent, kDiversion, kRepetition };

// What a cell may hold when it is left: its digits, and the number that they are.
struct Limit {
  std::size_t most_digits;
  std::int32_t highest;
};

Limit LimitOf(int column) {
  switch (column) {
    case kLocation:
      return {5, 65535};
    case kEvent:
      return {4, 2047};
    case kRepetition:
      return {2, 15};
    default:
      return {1, 7};
  }
}

std::int16_t Index(int row) { return static_cast<std::int16_t>(row); }

bool IsDigit(int key) { return key >= '0' && key <= '9'; }

bool HasOnlyDigits(const std::string& text) {
  return text.find_first_not_of("0123456789") == std::string::npos;
}

// A cell has no `max_length`: a paste that is too long must not be cut to a number that fits.
std::vector<GridColumn> TmcColumns() {
  using Kind = GridColumn::Kind;
  return {{.heading = "Tmc Nr.", .width = 7},
          {.heading = "Location", .kind = Kind::kText, .width = 8},
          {.heading = "Event", .kind = Kind::kText, .width = 6},
          {.heading = "Duration", .kind = Kind::kText, .width = 8},
          {.heading = "Direction", .kind = Kind::kButton, .width = 9},
          {.heading = "Extent", .kind = Kind::kText, .width = 6},
          {.heading = "Diversion", .kind = Kind::kButton, .width = 9},
          {.heading = "Repetition", .kind = Kind::kText, .width = 10}};
}

std::string TmcCell(int row, int column) {
  const std::int16_t i = Index(row);
  switch (column) {
    case kNumber:
      return Digits(row, 2);
    case kLocation:
      return Digits(tmcData->Location(i), 1);
    case kEvent:
      return Digits(tmcData->Events(i), 1);
    case kDuration:
      return Digits(tmcData->Duration(i), 1);
    case kDirection:
      return std::string(OnOff(tmcData->Direction(i)));
    case kExtent:
      return Digits(tmcData->Extent(i), 1);
    case kDiversion:
      return std::string(OnOff(tmcData->Diversion(i)));
    default:
      return Digits(tmcData->Repetition(i), 1);
  }
}

void WriteTmcCell(int row, int column, const std::string& text) {
  if (text.empty()) return;
  const std::int16_t i = Index(row);
  const std::int32_t number = ParseDecimal<std::int32_t>(text).value_or(0);
  if (column == kLocation) {
    tmcData->SetLocation(i, number);
  } else if (column == kEvent) {
    tmcData->SetEvents(i, static_cast<std::int16_t>(number));
  } else if (column == kDuration) {
    tmcData->SetDuration(i, static_cast<std::uint8_t>(number));
  } else if (column == kDirection) {
    tmcData->SetDirection(i, text == OnOff(true));
  } else if (column == kExtent) {
    tmcData->SetExtent(i, static_cast<std::uint8_t>(number));
  } else if (column == kDiversion) {
    tmcData->SetDiversion(i, text == OnOff(true));
  } else if (column == kRepetition) {
    tmcData->SetRepetition(i, static_cast<std::uint8_t>(number));
  }
}

Grid::Leave LeaveCell(int column, const std::string& text) {
  const Limit limit = LimitOf(column);
  const bool fits = !text.empty() && text.size() <= limit.most_digits && HasOnlyDigits(text) &&
                    ParseDecimal<std::int32_t>(text) <= limit.highest;
  return fits ? Grid::Leave::kTake : Grid::Leave::kRestore;
}

}  // namespace

TmcTab::TmcTab(Window& window)
    : window_(window),
      TmcDBGrid(window, "TmcDBGrid", TmcColumns()),
      buttons_(window,
               {.read_one = &ReadTmcCommand,
                .read_all = &ReadAllTmcCommand,
                .send_one = &SendTmcCommand,
                .send_all = &SendAllTmcCommand,
                .burst = &SendAllBurstTmcCommand},
               {.pause_send = 0.2F,
                .pause_burst = 0.2F,
                .extra_passes = 1,
                .commit_one = true,
                .commit_all = true,
                .commit_burst = true,
                .sends_one_way = false},
               {{.count = [] { return tmcData->MaxListNum(); },
                 .read = [](int row) { tmcData->GetOneRds(Index(row)); },
                 .send = [](int row) { tmcData->SetOneRds(Index(row)); },
                 .grid = &TmcDBGrid}}) {
  TmcDBGrid.RowCount = [] { return static_cast<int>(tmcData->MaxListNum()); };
  TmcDBGrid.Cell = TmcCell;
  TmcDBGrid.Write = WriteTmcCell;
  TmcDBGrid.CellLeft = [](int column, std::string& text) { return LeaveCell(column, text); };
  TmcDBGrid.RowLeft = [this](int row) { return LeaveRow(row); };
  TmcDBGrid.ButtonClick = [this](int column) { Toggle(column); };
  TmcDBGrid.Moved = [this] { ShowSelected(); };
  SetTypingRules();
}

void TmcTab::SetTypingRules() {
  TmcDBGrid.StartEdit = [this](int /*column*/, int key) {
    last_key_ = Grid::kNoKey;
    return IsDigit(key) || key == kKeyBackspace || key == '.' || key == kKeyPaste ||
           key == Grid::kNoKey;
  };
  TmcDBGrid.KeyPress = [this](int column, int& key) {
    const TextBox& cell = TmcDBGrid.Editor();
    const bool full = cell.Text().size() >= LimitOf(column).most_digits && cell.SelLength() == 0;
    const bool types = IsDigit(key) || key == '.' || key == kKeyPaste;
    if (key != kKeyBackspace && (full || !types)) key = kKeyCancelled;
    last_key_ = key;
  };
  TmcDBGrid.Edited = [this] { JudgePaste(); };
}

// Text that is not digits is not pasted.
void TmcTab::JudgePaste() {
  const bool pasted = std::exchange(last_key_, Grid::kNoKey) == kKeyPaste;
  TextBox& cell = TmcDBGrid.Editor();
  if (pasted && !HasOnlyDigits(cell.Text())) {
    cell.SetText(last_text_);
    cell.SelectAll();
  }
  last_text_ = cell.Text();
}

void TmcTab::Toggle(int column) {
  Grid& grid = TmcDBGrid;
  grid.PutEdit(column, std::string(OnOff(grid.Shown(grid.Row(), column) != OnOff(true))));
}

// The cell's own rule already takes nothing empty from the hand; this holds for every other way.
bool TmcTab::LeaveRow(int row) {
  if (!TmcDBGrid.Shown(row, kLocation).empty()) return true;
  Machine().dialogs->Show({.text = "Immettere un valore nella seconda colonna",
                           .title = "TMC",
                           .style = BoxStyle::kInformation,
                           .help_file = {}});
  return false;
}

void TmcTab::ShowSelected() { TmcSelectedLabel.SetCaption("TMC " + Digits(TmcDBGrid.Row(), 2)); }

void TmcTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  ReadTmcCommand.SetTexts(texts.TmcReadOneKey(), texts.TmcReadOneTip());
  ReadAllTmcCommand.SetTexts(texts.TmcReadAllKey(), texts.TmcReadAllTip());
  SendTmcCommand.SetTexts(texts.TmcSendOneKey(), texts.TmcSendOneTip());
  SendAllTmcCommand.SetTexts(texts.TmcSendAllKey(), texts.TmcSendAllTip());
  SendAllBurstTmcCommand.SetTexts(texts.TmcSendAllBurstKey(), texts.TmcSendAllBurstTip());
}

void TmcTab::Open() {
  buttons_.Show();
  TmcDBGrid.Restart();
  ShowSelected();
}

}  // namespace corvalis
