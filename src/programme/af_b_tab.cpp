#include "programme/af_b_tab.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "link/utility.h"

namespace corvalis {

namespace {

constexpr int kNumberDigits = 2;
constexpr int kBoxCharacters = 5;

std::int16_t Index(int value) { return static_cast<std::int16_t>(value); }

std::int16_t Current() { return afBData->CurrentAfBListNum(); }

// What a box of the current list stands for; box 0 is the main frequency.
float ValueOf(int box) {
  return box == 0 ? afBData->MainFreq(Current()) : afBData->ListFreq(Current(), Index(box - 1));
}

std::string BoxText(int box) { return FixedPoint(ValueOf(box), 3, 1); }

// The frequency that an operator's text stands for, or 0; nullopt for anything else.
std::optional<float> CheckAfBText(std::string_view text) {
  const auto value = ParseFloat(text);
  if (!value) return std::nullopt;
  const bool fm = *value >= AfBData::GetMinFreq() && *value <= AfBData::GetMaxFreq();
  if (!fm && *value != AfBData::GetNoFreq()) return std::nullopt;
  return value;
}

std::array<std::string, AfBTab::kBoxes> Tips(const LanguageData& texts) {
  return {texts.AFBFreq00Tip(), texts.AFBFreq01Tip(), texts.AFBFreq02Tip(), texts.AFBFreq03Tip(),
          texts.AFBFreq04Tip(), texts.AFBFreq05Tip(), texts.AFBFreq06Tip(), texts.AFBFreq07Tip(),
          texts.AFBFreq08Tip(), texts.AFBFreq09Tip(), texts.AFBFreq10Tip(), texts.AFBFreq11Tip(),
          texts.AFBFreq12Tip()};
}

}  // namespace

AfBTab::AfBTab(Window& window)
    : window_(window),
      buttons_(window,
               {.read_one = &Command4,
                .read_all = &Command5,
                .send_one = &Command2,
                .send_all = &Command1,
                .burst = &Command3},
               {.pause_send = 0.2F, .pause_burst = 0.2F, .extra_passes = 1},
               {{.count = [] { return afBData->MaxAfBListNum(); },
                 .selected = [] { return std::vector<int>{Current()}; },
                 .read = [](int list) { afBData->GetOneRds(Index(list)); },
                 .send = [](int list) { afBData->SetOneRds(Index(list)); },
                 .refresh = [this] { ShowList(); }}}) {
  SetListRules();
  SetBoxRules();
}

void AfBTab::SetListRules() {
  VScroll1.StepUp = [this] { Step(+1); };
  VScroll1.StepDown = [this] { Step(-1); };
  Text1.KeyPress = [this](int& key) {
    FrequencyKeyFilter(Text1.Text(), key, kNumberDigits, Text1.SelLength(), Text1.SelStart(),
                       false);
  };
  Text1.LostFocus = [this] { LeaveNumber(); };
  Combo2.Click = [this] { GoTo(Index(Combo2.Index())); };
  Combo2.Change = [this] { TakeDescription(); };
}

void AfBTab::GoTo(std::int16_t list) {
  if (list == ListBox::kNone) return;
  afBData->SetCurrentAfBListNum(list);
  Text1.SetText(Digits(list, kNumberDigits));
  Combo2.SetIndex(list);  // and back here, unless it is there already
  ShowList();
}

void AfBTab::Step(int by) {
  const int lists = afBData->MaxAfBListNum();
  GoTo(Index((Current() + by + lists) % lists));
}

void AfBTab::LeaveNumber() {
  const auto list = ParseDecimal<std::int16_t>(Text1.Text());
  GoTo(list && *list >= 0 && *list < afBData->MaxAfBListNum() ? *list : Current());
}

// Taken as it is typed, so that it is kept also if another list is chosen next; and its list is the
// one that a key goes on from.
void AfBTab::TakeDescription() {
  const std::string text = Combo2.Text();
  afBData->SetDescr(Current(), text);
  Combo2.Replace(Current(), text);
  Combo2.SetIndex(Current());
}

void AfBTab::SetBoxRules() {
  for (int i = 0; i < kBoxes; ++i) {
    TextBox& box = Text2[i];
    box.KeyPress = [&box](int& key) {
      FrequencyKeyFilter(box.Text(), key, kBoxCharacters, box.SelLength(), box.SelStart(), true);
    };
    box.Change = [this, &box] { PlacePoint(box); };
    box.LostFocus = [this, i] { LeaveBox(i); };
  }
}

// One decimal and no more; four digits get their point by themselves: 1079 is 107.9.
void AfBTab::PlacePoint(TextBox& box) {
  constexpr std::size_t kWithoutPoint = 4;
  std::string text = box.Text();
  const std::size_t point = text.find_first_of(".,");
  if (point != std::string::npos) {
    if (text.size() < point + 3) return;
    text.resize(point + 2);
  } else {
    if (text.size() != kWithoutPoint || box.SelLength() != 0) return;
    text.insert(kWithoutPoint - 1, ".");
  }
  box.SetText(text);
  box.Select(kBoxCharacters, 0);
}

void AfBTab::LeaveBox(int box) {
  std::string text = Text2[box].Text();
  std::replace(text.begin(), text.end(), ',', '.');
  const auto value = CheckAfBText(text);
  if (!value) {
    if (BringToFront) BringToFront();
    return RefuseBox(Text2[box], BoxText(box));
  }
  if (box > 0) {
    afBData->SetListFreq(Current(), Index(box - 1), *value);
  } else {
    afBData->SetMainFreq(Current(), *value);
    // A list without a main frequency has no alternatives.
    for (int i = 1; i < kBoxes && *value == AfBData::GetNoFreq(); ++i) {
      afBData->SetListFreq(Current(), Index(i - 1), AfBData::GetNoFreq());
      ShowBox(i);
    }
  }
  ShowBox(box);
  ShowBand();
}

void AfBTab::ShowBox(int box) { Text2[box].SetText(BoxText(box)); }

void AfBTab::ShowList() {
  for (int i = 0; i < kBoxes; ++i) ShowBox(i);
  ShowBand();
}

void AfBTab::ShowBand() {
  std::vector<BandMark> marks;
  for (int i = 0; i < kBoxes; ++i) {
    const float value = ValueOf(i);
    if (value == AfBData::GetNoFreq()) continue;
    marks.push_back({.mhz = value, .text = FixedPoint(value, 1, 1), .main = i == 0});
  }
  AfBBandStrip.SetMarks(marks);
}

void AfBTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  ListNrLabel.SetTexts(texts.AFBListNrKey(), texts.AFBListNrTip());
  Text1.SetToolTip(texts.AFBListNrTip());
  VScroll1.SetToolTip(texts.AFBListNrTip());
  DescriptionLabel.SetTexts(texts.AFBDescriptionKey(), texts.AFBDescriptionTip());
  Combo2.SetToolTip(texts.AFBDescriptionTip());
  MainFreqLabel.SetTexts(texts.AFBMainFreqKey(), texts.AFBFreq00Tip());
  AltFreqLabel.SetCaption(texts.AFBAltFreqKey());
  const auto tips = Tips(texts);
  for (int i = 0; i < kBoxes; ++i) Text2[i].SetToolTip(tips.at(static_cast<std::size_t>(i)));
  Command4.SetTexts(texts.AFBReadKey(), texts.AFBReadTip());
  Command5.SetTexts(texts.AFBReadAllKey(), texts.AFBReadAllTip());
  Command2.SetTexts(texts.AFBSendOneListKey(), texts.AFBSendOneListTip());
  Command1.SetTexts(texts.AFBSendAllListKey(), texts.AFBSendAllListTip());
  Command3.SetTexts(texts.AFBSendAllBurstKey(), texts.AFBSendAllBurstTip());
}

void AfBTab::Open() {
  buttons_.Show();
  std::vector<std::string> descriptions;
  for (std::int16_t i = 0; i < afBData->MaxAfBListNum(); ++i) {
    descriptions.push_back(afBData->Descr(i));
  }
  Combo2.Fill(descriptions);
  GoTo(Current());
}

}  // namespace corvalis
