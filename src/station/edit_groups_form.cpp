#include "station/edit_groups_form.h"

#include <array>
#include <string>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/language_data.h"
#include "config/words.h"
#include "link/serial_management.h"
#include "link/station_commands.h"
#include "link/transfer.h"

namespace corvalis {

namespace {

constexpr int kRepetitionDigits = 3;

using Texts = LanguageData;
constexpr std::array<const std::string& (Texts::*)() const, kGroups> kGroupTips{
    &Texts::GroupTime0Tip,  &Texts::GroupTime1Tip,  &Texts::GroupTime2Tip,  &Texts::GroupTime3Tip,
    &Texts::GroupTime4Tip,  &Texts::GroupTime5Tip,  &Texts::GroupTime6Tip,  &Texts::GroupTime7Tip,
    &Texts::GroupTime8Tip,  &Texts::GroupTime9Tip,  &Texts::GroupTime10Tip, &Texts::GroupTime11Tip,
    &Texts::GroupTime12Tip, &Texts::GroupTime13Tip, &Texts::GroupTime14Tip, &Texts::GroupTime15Tip,
    &Texts::GroupTime16Tip, &Texts::GroupTime17Tip, &Texts::GroupTime18Tip, &Texts::GroupTime19Tip,
    &Texts::GroupTime20Tip, &Texts::GroupTime21Tip, &Texts::GroupTime22Tip, &Texts::GroupTime23Tip,
    &Texts::GroupTime24Tip, &Texts::GroupTime25Tip, &Texts::GroupTime26Tip, &Texts::GroupTime27Tip,
    &Texts::GroupTime28Tip, &Texts::GroupTime29Tip, &Texts::GroupTime30Tip, &Texts::GroupTime31Tip};

// The groups that travel are the first so many of the table: those of version B stay out of a Coder
// that lacks them.
int TravellingGroups() {
  return configData->GroupsBEnable() ? groupsData->MaxGroupNum() : groupsData->MaxGroupNum() / 2;
}

void SendGroup(int group) {
  SendEnable(static_cast<std::uint8_t>(group), groupsData->Active(group),
             groupsData->Repetitions(group));
}

}  // namespace

EditGroupsForm::EditGroupsForm(Window& main_menu) : main_menu_(main_menu) {
  for (int group = 0; group < kGroups; ++group) {
    Check1[group].Click = [this, group] { Tick(group); };
    Text1[group].SetLocked(true);
    VScroll2[group].StepUp = [this, group] { Step(group, +1); };
    VScroll2[group].StepDown = [this, group] { Step(group, -1); };
    const std::array<Control*, 3> controls{&Check1[group], &Text1[group], &VScroll2[group]};
    for (Control* control : controls) {
      control->GotFocus = [this, group] { Select(group); };
    }
  }
  Command1.Click = [this] { RunSend(window, [this] { SendAll(); }); };
  Command12.Click = [this] { RunBurst(window, configData->Burst(), [this] { SendAll(); }); };
  Command11.Click = [this] { SendSelected(); };
  Command13.Click = [this] { ReadAll(); };
  Command2.Click = [this] { ReadSelected(); };
}

void EditGroupsForm::InitCaptions() {
  const LanguageData& texts = *languageData;
  window.SetCaption(Word("EDIT GROUPS"));
  for (int group = 0; group < kGroups; ++group) {
    const std::string& tip = (texts.*kGroupTips[static_cast<std::size_t>(group)])();
    // The names of the standard are the same in every language.
    Check1[group].SetTexts(GroupName(group), tip);
    Text1[group].SetToolTip(tip);
    VScroll2[group].SetToolTip(tip);
  }
  Command1.SetTexts(texts.GroupSendAllKey(), texts.GroupSendAllTip());
  Command11.SetTexts(texts.GroupSendOneKey(), texts.GroupSendOneTip());
  Command12.SetTexts(texts.GroupSendAllBurstKey(), texts.GroupSendAllBurstTip());
  Command13.SetTexts(texts.GroupReadAllKey(), texts.GroupReadAllTip());
  Command2.SetTexts(texts.GroupReadOneKey(), texts.GroupReadOneTip());
}

void EditGroupsForm::Load() {
  InitCaptions();
  ShowTransferButtons({{&Command13, &Command2}, {&Command1, &Command11}, {&Command12}});
  for (int group = 0; group < kGroups; ++group) {
    ShowGroup(group);
    Check1[group].SetEnabled(group < kGroupNumbers || configData->GroupsBEnable());
  }
  ShowShares();
  Select(0);
  window.ShowModal(main_menu_);
}

void EditGroupsForm::Select(int group) {
  selected_ = group;
  SelectedLabel.SetCaption(Word("Group %1", {GroupName(group)}));
}

void EditGroupsForm::Tick(int group) {
  CheckBox& box = Check1[group];
  groupsData->SetActive(group, box.Checked());
  // A box that is set from the table, when the screen opens or reads, comes here as well; that is
  // no choice of the operator's, whose click always brings the focus.
  if (box.HasFocus()) Select(group);
  ShowTone(group);
  ShowShares();
}

void EditGroupsForm::Step(int group, int step) {
  const int count = groupsData->MaxRepetitions();
  const int from = groupsData->Repetitions(group) + (step < 0 ? count : 0);
  groupsData->SetRepetitions(group, static_cast<std::int16_t>((from + step) % count));
  Select(group);
  ShowGroup(group);
  ShowShares();
}

void EditGroupsForm::ShowGroup(int group) {
  Text1[group].SetText(Digits(groupsData->Repetitions(group), kRepetitionDigits));
  Check1[group].SetChecked(groupsData->Active(group));
  ShowTone(group);
}

void EditGroupsForm::ShowTone(int group) {
  CheckBox& box = Check1[group];
  box.SetTone(box.Checked() ? CheckBox::Tone::kOn : CheckBox::Tone::kOff);
}

void EditGroupsForm::ShowShares() {
  std::array<int, kGroupNumbers> counts{};
  int whole = 0;
  for (int group = 0; group < kGroups; ++group) {
    if (!Check1[group].Checked()) continue;
    const int shown = ParseDecimal<std::int32_t>(Text1[group].Text()).value_or(0);
    counts[static_cast<std::size_t>(group % kGroupNumbers)] += shown;
    whole += shown;
  }
  for (int number = 0; number < kGroupNumbers; ++number) {
    const int count = counts[static_cast<std::size_t>(number)];
    PercentText[number].SetCaption(count < 1 ? "0 %" : Percent(count, whole));
    PercentBar[number].SetValue(count < 1 || whole < 1 ? 0 : Meter::kMax * count / whole);
  }
}

void EditGroupsForm::SendAll() { RunItems(TravellingGroups(), SendGroup); }

void EditGroupsForm::SendSelected() {
  if (selected_ >= TravellingGroups()) return;
  // Unlike every other sending button, this one shows the transfer screen before it asks whether
  // the Coder has been addressed.
  RunRead(window, [this] {
    if (AddressRuleAllows()) SendGroup(selected_);
  });
}

void EditGroupsForm::ReadAll() {
  RunRead(window,
          [this] { RunItems(TravellingGroups(), [this](int group) { ReadGroup(group); }); });
  ShowShares();
}

void EditGroupsForm::ReadSelected() {
  if (selected_ >= TravellingGroups()) return;
  RunRead(window, [this] { ReadGroup(selected_); });
  ShowShares();
}

void EditGroupsForm::ReadGroup(int group) {
  bool active = groupsData->Active(group);
  std::int16_t repetitions = groupsData->Repetitions(group);
  ReadEnable(static_cast<std::uint8_t>(group), active, repetitions);
  if (LinkError != kLinkOk) return;
  groupsData->SetActive(group, active);
  groupsData->SetRepetitions(group, repetitions);
  ShowGroup(group);
}

}  // namespace corvalis
