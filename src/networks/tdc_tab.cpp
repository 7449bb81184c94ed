#include "networks/tdc_tab.h"

#include <cctype>
#include <cstdint>
#include <string>

#include "config/conversions.h"
#include "config/language_data.h"
#include "config/words.h"
#include "link/utility.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "platform/platform.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

enum Column0 { kRow0, kAddress, kCommand0, kOn0 };
enum Column { kRow, kCommand, kOn };

constexpr int kBitsOfDigit = 4;
constexpr int kFirstCharacter = ' ';

std::int16_t Index(int row) { return static_cast<std::int16_t>(row); }

std::string Name0(int row) { return Digits(row, 2); }
std::string Name(int row) { return Digits(row + 1, 2); }

std::string Flag(bool on) { return on ? "1" : "0"; }

GridColumn Bits(int bits) {
  return {.heading = "Command",
          .kind = GridColumn::Kind::kText,
          .width = bits,
          .max_length = bits,
          .every_place = true,
          .keys = "01",
          .group = kBitsOfDigit};
}

bool Refused(const GridColumn& column, int key) {
  const bool types = key >= kFirstCharacter || key == kKeyBackspace || key == kKeyPaste;
  return !column.keys.empty() && types &&
         column.keys.find(static_cast<char>(key)) == std::string::npos;
}

// A command that is too short is not taken: the row can't be left with it.
bool IsWhole(const std::string& command, int bits) {
  if (command.size() >= static_cast<std::size_t>(bits)) return true;
  Machine().dialogs->Beep();
  return false;
}

}  // namespace

TdcTab::TdcTab(Window& window)
    : window_(window),
      DBGrid1(window, "DBGrid1",
              {{.heading = "", .width = 3},
               {.heading = "Addr",
                .kind = GridColumn::Kind::kText,
                .width = 5,
                .max_length = kTdc0AddressDigits,
                .keys = "0123456789ABCDEFabcdef"},
               Bits(kTdc0Bits),
               {.heading = "On", .kind = GridColumn::Kind::kText, .width = 3}}),
      DBGrid2(window, "DBGrid2",
              {{.heading = "", .width = 3},
               Bits(kTdcBits),
               {.heading = "On", .kind = GridColumn::Kind::kText, .width = 3}}),
      // A burst has no pass more than it says, and none of the runs has pauses. That is meant.
      buttons_(window,
               {.read_one = &Command2,
                .read_all = &Command3,
                .send_one = &Command5,
                .send_all = &Command6,
                .burst = &Command4},
               {},
               {{.count = [] { return int{Tdc0Data::MaxSubChannelNum()}; },
                 .selected = [this] { return SelectedIn(DBGrid1); },
                 .read = [](int row) { tdc0Data->GetOneRds(Index(row)); },
                 .send = [](int row) { tdc0Data->SendOneRds(Index(row)); },
                 .grid = &DBGrid1},
                {.count = [] { return int{TdcData::MaxChannelNum()}; },
                 .selected = [this] { return SelectedIn(DBGrid2); },
                 .read = [](int row) { tdcData->GetOneRds(Index(row)); },
                 .send = [](int row) { tdcData->SendOneRds(Index(row)); },
                 .grid = &DBGrid2}}) {
  SetGrid1Rules();
  SetGrid2Rules();
  for (Grid* grid : {&DBGrid1, &DBGrid2}) {
    SetTypingRules(*grid);
    grid->GotFocus = [this, grid] { Select(*grid); };
    grid->Moved = [this] { ShowSelected(); };
    grid->Edited = [this] { ShowSelected(); };
  }
}

void TdcTab::SetGrid1Rules() {
  DBGrid1.RowCount = [] { return int{Tdc0Data::MaxSubChannelNum()}; };
  DBGrid1.Cell = [](int row, int column) {
    if (column == kRow0) return Name0(row);
    if (column == kAddress) return tdc0Data->AddressText(Index(row));
    return column == kCommand0 ? tdc0Data->Command(Index(row)) : Flag(tdc0Data->Active(Index(row)));
  };
  DBGrid1.RowLeft = [this](int row) {
    if (!IsWhole(DBGrid1.Shown(row, kCommand0), kTdc0Bits)) return false;
    if (DBGrid1.Shown(row, kAddress).empty()) DBGrid1.DropEdit(kAddress);
    return true;
  };
  DBGrid1.Write = [](int row, int column, const std::string& text) {
    if (column == kAddress) {
      tdc0Data->SetAddress(Index(row), static_cast<std::int16_t>(HexToLong(text)));
    } else if (column == kCommand0) {
      tdc0Data->SetCommand(Index(row), text);
    } else {
      tdc0Data->SetActive(Index(row), text == Flag(true));
    }
  };
}

void TdcTab::SetGrid2Rules() {
  DBGrid2.RowCount = [] { return int{TdcData::MaxChannelNum()}; };
  DBGrid2.Cell = [](int row, int column) {
    if (column == kRow) return Name(row);
    return column == kCommand ? tdcData->Command(Index(row)) : Flag(tdcData->Active(Index(row)));
  };
  DBGrid2.RowLeft = [this](int row) { return IsWhole(DBGrid2.Shown(row, kCommand), kTdcBits); };
  DBGrid2.Write = [](int row, int column, const std::string& text) {
    if (column == kCommand) {
      tdcData->SetCommand(Index(row), text);
    } else {
      tdcData->SetActive(Index(row), text == Flag(true));
    }
  };
}

// Back space is none of the keys either, even with a selection. That is meant.
void TdcTab::SetTypingRules(Grid& grid) {
  grid.StartEdit = [&grid](int column, int key) {
    if (!Refused(grid.Columns().at(static_cast<std::size_t>(column)), key)) return true;
    RefuseKey(key);
    return false;
  };
  grid.KeyPress = [&grid](int column, int& key) {
    const GridColumn& of = grid.Columns().at(static_cast<std::size_t>(column));
    const TextBox& cell = grid.Editor();
    const bool full = of.max_length > 0 && key >= kFirstCharacter && cell.SelLength() == 0 &&
                      cell.Text().size() >= static_cast<std::size_t>(of.max_length);
    if (full || Refused(of, key)) {
      RefuseKey(key);
    } else if (!of.keys.empty()) {
      key = std::toupper(key);  // digits have no other case
    }
  };
}

std::vector<int> TdcTab::SelectedIn(const Grid& grid) const {
  return &grid == selected_ ? std::vector<int>{grid.Row()} : std::vector<int>{};
}

void TdcTab::Select(Grid& grid) {
  selected_ = &grid;
  ShowSelected();
}

void TdcTab::ShowSelected() {
  const bool first = selected_ == &DBGrid1;
  const auto mark = [this](const Grid& grid, const std::string& row) -> std::string {
    if (&grid == selected_) return WithUntaken(grid, Word("selected"));
    return grid.HasUntaken() ? WithUntaken(grid, Word("row %1", {row})) : "";
  };
  Tdc0MarkLabel.SetCaption(mark(DBGrid1, Name0(DBGrid1.Row())));
  TdcMarkLabel.SetCaption(mark(DBGrid2, Name(DBGrid2.Row())));
  TdcSelectedLabel.SetCaption(first ? Word("Channel 0, %1", {Name0(DBGrid1.Row())})
                                    : Word("Channel %1", {Name(DBGrid2.Row())}));
}

void TdcTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  Tdc0Label.SetCaption("TRANSPARENT DATA CHANNEL 0");
  TdcLabel.SetCaption("TRANSPARENT DATA CHANNEL 1 - 31");
  Command2.SetTexts(texts.TdcReadOneKey(), texts.TdcReadOneTip());
  Command3.SetTexts(texts.TdcReadAllKey(), texts.TdcReadAllTip());
  Command5.SetTexts(texts.TdcSendOneKey(), texts.TdcSendOneTip());
  Command6.SetTexts(texts.TdcSendAllKey(), texts.TdcSendAllTip());
  Command4.SetTexts(texts.TdcSendAllBurstKey(), texts.TdcSendAllBurstTip());
}

void TdcTab::Open() {
  buttons_.Show();
  DBGrid1.Restart();
  DBGrid2.Restart();
  Select(DBGrid1);
}

}  // namespace corvalis
