#include "programme/rt_tab.h"

#include <string>

#include "config/conversions.h"
#include "config/language_data.h"
#include "config/words.h"
#include "link/list_commands.h"
#include "link/utility.h"
#include "programme/rt_data.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

enum Column { kName, kRotation, kText };

std::string RowName(int row) { return "RT " + Digits(row, 2); }

std::int16_t Index(int row) { return static_cast<std::int16_t>(row); }

}  // namespace

RtTab::RtTab(Window& window)
    : window_(window),
      DBGrid3(window, "DBGrid3",
              {{.width = 6},
               {.kind = GridColumn::Kind::kText, .width = 6},
               {.kind = GridColumn::Kind::kText,
                .width = kRtCharacters + 2,
                .max_length = kRtCharacters,
                .every_place = true}}),
      buttons_(window,
               {.read_one = &Command9,
                .read_all = &Command22,
                .send_one = &Command14,
                .send_all = &Command21,
                .burst = &Command10},
               {.pause_read = 0.2F, .pause_send = 0.2F, .commit_one = true},
               {{.count = [] { return rtData->MaxRtNum(); },
                 .read = [](int row) { rtData->GetOneRds(Index(row)); },
                 .send = [](int row) { rtData->SetOneRds(Index(row)); },
                 .refresh = [this] { ShowSelected(); },
                 .grid = &DBGrid3}}) {
  DBGrid3.RowCount = [] { return static_cast<int>(rtData->MaxRtNum()); };
  DBGrid3.Cell = [](int row, int column) {
    if (column == kName) return RowName(row);
    return column == kRotation ? Digits(rtData->RotationTime(Index(row)), 1)
                               : rtData->Data(Index(row));
  };
  DBGrid3.KeyPress = [this](int column, int& key) {
    const TextBox& cell = DBGrid3.Editor();
    const bool full = cell.SelLength() == 0 && cell.Text().size() >= kRtCharacters;
    if (column == kText && key != kKeyBackspace && full) RefuseKey(key);
  };
  DBGrid3.RowLeft = [this](int row) {
    const auto time = ParseDecimal<std::int16_t>(DBGrid3.Shown(row, kRotation));
    if (!time || !Narrow<std::uint8_t>(*time)) DBGrid3.DropEdit(kRotation);
    return true;
  };
  DBGrid3.Write = [](int row, int column, const std::string& text) {
    if (column == kText) {
      rtData->SetData(Index(row), text);
    } else if (const auto time = ParseDecimal<std::int16_t>(text)) {
      rtData->SetRotationTime(Index(row), *time);
    }
  };
  DBGrid3.Moved = [this] { ShowSelected(); };
  DBGrid3.Edited = [this] { ShowSelected(); };
}

void RtTab::ShowSelected() {
  const int row = DBGrid3.Row();
  RtSelectedLabel.SetCaption(WithUntaken(DBGrid3, RowName(row)));
  const std::string text = TypedText(DBGrid3, kText);
  RtRadioLabel.SetCaption(text);
  RtCountLabel.SetCaption(std::to_string(text.find_last_not_of(' ') + 1) + " / " +
                          std::to_string(kRtCharacters));
}

void RtTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  DBGrid3.SetHeadings({"RT", Word("Time"), Word("Text")});
  Command9.SetTexts(texts.RtReadKey(), texts.RtReadTip());
  Command22.SetTexts(texts.RtReadAllKey(), texts.RtReadAllTip());
  Command14.SetTexts(texts.RtSendOneKey(), texts.RtSendOneTip());
  Command21.SetTexts(texts.RtSendAllKey(), texts.RtSendAllTip());
  Command10.SetTexts(texts.RtSendAllBurstKey(), texts.RtSendAllBurstTip());
}

void RtTab::Open() {
  buttons_.Show();
  DBGrid3.Restart();
  ShowSelected();
}

}  // namespace corvalis
