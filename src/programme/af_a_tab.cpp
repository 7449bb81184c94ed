#include "programme/af_a_tab.h"

#include <algorithm>
#include <array>
#include <vector>

#include "config/conversions.h"
#include "config/language_data.h"
#include "link/utility.h"
#include "programme/af_a_data.h"
#include "programme/af_text.h"

namespace corvalis {

namespace {

constexpr int kBoxCharacters = 7;

std::int16_t Index(int box) { return static_cast<std::int16_t>(box); }

std::string BoxText(float value) {
  const bool fm = air::IsFm(value) || value == air::kNoFreq;
  return FixedPoint(value, 3, fm ? 3 : 0);
}

// Boxes that there is room for: each entry of two bytes costs one at the end of the list.
int AvailableBoxes() { return air::kAfEntries - afAData->AfByteCount(); }

std::array<std::string, air::kAfEntries> Tips(const LanguageData& texts) {
  return {texts.AFAAlternativeFreq00Tip(), texts.AFAAlternativeFreq01Tip(),
          texts.AFAAlternativeFreq02Tip(), texts.AFAAlternativeFreq03Tip(),
          texts.AFAAlternativeFreq04Tip(), texts.AFAAlternativeFreq05Tip(),
          texts.AFAAlternativeFreq06Tip(), texts.AFAAlternativeFreq07Tip(),
          texts.AFAAlternativeFreq08Tip(), texts.AFAAlternativeFreq09Tip(),
          texts.AFAAlternativeFreq10Tip(), texts.AFAAlternativeFreq11Tip(),
          texts.AFAAlternativeFreq12Tip(), texts.AFAAlternativeFreq13Tip(),
          texts.AFAAlternativeFreq14Tip(), texts.AFAAlternativeFreq15Tip(),
          texts.AFAAlternativeFreq16Tip(), texts.AFAAlternativeFreq17Tip(),
          texts.AFAAlternativeFreq18Tip(), texts.AFAAlternativeFreq19Tip(),
          texts.AFAAlternativeFreq20Tip(), texts.AFAAlternativeFreq21Tip(),
          texts.AFAAlternativeFreq22Tip(), texts.AFAAlternativeFreq23Tip(),
          texts.AFAAlternativeFreq24Tip()};
}

}  // namespace

AfATab::AfATab(Window& window)
    : window_(window),
      buttons_(window, {.read_one = &Command13, .send_one = &Command11, .burst = &Command12},
               {.pause_burst = 0.2F},
               {OneItem({.read =
                             [this](int /*list*/) {
                               afAData->GetOneRds();
                               ShowAvailability(AvailableBoxes());
                             },
                         .send = [](int /*list*/) { afAData->SetOneRds(); },
                         .prepare =
                             [this] {
                               afAData->ArrangeAfList();
                               ShowBoxes();
                             },
                         .refresh = [this] { ShowBoxes(); }})}) {
  for (int i = 0; i < air::kAfEntries; ++i) {
    TextBox& box = Text39[i];
    box.KeyPress = [&box](int& key) {
      FrequencyKeyFilter(box.Text(), key, kBoxCharacters, box.SelLength(), box.SelStart(), true);
    };
    box.LostFocus = [this, i] { LeaveBox(i); };
  }
}

void AfATab::LeaveBox(int box) {
  std::string text = Text39[box].Text();
  if (text == BoxText(afAData->Freq(Index(box)))) return Keep(box);
  std::replace(text.begin(), text.end(), ',', '.');
  Text39[box].SetText(text);
  const auto typed = AfTextValue(text);
  const std::string before = BoxText(afAData->Freq(Index(box)));
  if (!typed) return Refuse(box, before);
  const float value = air::OnAfRaster(*typed);
  // The pair would have no room at the end of the list.
  if (air::FreqHasOffset(value) && box >= AvailableBoxes() - 1) return Refuse(box, before);
  afAData->SetFreq(Index(box), value);
  // A pair among those that go makes room again, but only for the next entry.
  const int available = AvailableBoxes();
  for (int i = available; i < air::kAfEntries; ++i) afAData->SetFreq(Index(i), air::kNoFreq);
  ShowBoxes();
  ShowAvailability(available);
}

// A box that is left as it was shown is not judged: not every list that can be read or loaded
// would pass. But what it shows is what it is now.
void AfATab::Keep(int box) {
  const float value = ParseFloat(Text39[box].Text()).value_or(air::kNoFreq);
  afAData->SetFreq(Index(box), air::OnAfRaster(value));
  ShowBoxes();
  ShowAvailability(AvailableBoxes());
}

void AfATab::Refuse(int box, const std::string& shown) {
  if (BringToFront) BringToFront();
  RefuseBox(Text39[box], shown);
}

bool AfATab::MayClose() {
  for (int i = 0; i < air::kAfEntries; ++i) {
    TextBox& box = Text39[i];
    // The focus has been asked to go: this box has just refused what it holds.
    if (box.HasFocus()) return false;
    // What can't be got at can't be mended, and goes with the next entry that is accepted.
    if (!box.Enabled() || CheckAfText(box.Text())) continue;
    Refuse(i, box.Text());
    return false;
  }
  return true;
}

void AfATab::ShowAfBox(int box) { Text39[box].SetText(BoxText(afAData->Freq(Index(box)))); }

void AfATab::ShowBoxes() {
  for (int i = 0; i < air::kAfEntries; ++i) ShowAfBox(i);
  ShowBand();
}

void AfATab::ShowAvailability(int available) {
  for (int i = 0; i < air::kAfEntries; ++i) Text39[i].SetEnabled(i < available);
}

void AfATab::ShowBand() {
  std::vector<BandMark> marks;
  std::vector<std::string> beside;
  for (int i = 0; i < air::kAfEntries; ++i) {
    const float value = afAData->Freq(Index(i));
    if (air::IsFm(value)) {
      marks.push_back(
          {.mhz = value, .text = FixedPoint(value, 1, air::FreqHasOffset(value) ? 3 : 1)});
    } else if (air::IsLf(value) || air::IsMf(value)) {
      beside.push_back(FixedPoint(value, 1, 0) + " kHz");
    }
  }
  AfABandStrip.SetMarks(marks);
  AfABandStrip.SetBeside(beside);
}

void AfATab::InitCaptions() {
  const LanguageData& texts = *languageData;
  AlternativeFreqLabel.SetCaption(texts.AFAAlternativeFreqKey());
  const auto tips = Tips(texts);
  for (int i = 0; i < air::kAfEntries; ++i) {
    Text39[i].SetToolTip(tips.at(static_cast<std::size_t>(i)));
  }
  Command13.SetTexts(texts.AFAReadKey(), texts.AFAReadTip());
  Command11.SetTexts(texts.AFASendKey(), texts.AFASendTip());
  Command12.SetTexts(texts.AFASendBurstKey(), texts.AFASendBurstTip());
}

void AfATab::Open() {
  buttons_.Show();
  ShowBoxes();
  ShowAvailability(AvailableBoxes());
}

}  // namespace corvalis
