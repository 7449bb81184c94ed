// The group sequence screen, driven through its controls against the Coder in memory.

#include "station/edit_groups_form.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/station_screen.h"

namespace corvalis::test {
namespace {

constexpr std::uint8_t kEnableCode = 0x09;
constexpr const char* kLocalB = "[Serial Setup]\nSatellite=Off\n[RDS Setup]\nGroups B Enable=On\n";
// The Coder's table has no such index, says the Coder.
const Bytes kPointerTooBig{0x15, 0x02, 0x00, 0x02, 0x03, 0x03};

class EditGroupsTest : public StationScreenTest<EditGroupsForm> {
 protected:
  ~EditGroupsTest() override { groupsData = nullptr; }
  void LoadLists() override {
    if (groups == nullptr) groups = std::make_unique<GroupsData>();
    groupsData = groups.get();
    groups->GetIni();
  }
  [[nodiscard]] std::string SelectedGroup() const {
    return form->SelectedLabel.Caption().substr(std::string("Group ").size());
  }
  /// The groups of the frames that have left since the last call.
  std::vector<int> SentGroups() {
    std::vector<int> sent;
    for (const Bytes& frame : Written()) sent.push_back(frame.at(2));
    return sent;
  }
  static std::vector<int> FirstGroups(int count, int passes = 1) {
    std::vector<int> all(static_cast<std::size_t>(count * passes));
    for (int i = 0; int& group : all) group = i++ % count;
    return all;
  }

  std::unique_ptr<GroupsData> groups;
};

TEST_F(EditGroupsTest, SharesOfTheCycle) {
  const std::tuple<const char*, const char*, const char*, int> cases[] = {
      {"", "0 %", "0 %", 0},
      {"Group00A=3;On\nGroup00B=1;On\nGroup02A=4;On\nGroup05A=9;Off\n", "50 %", "50 %", 500},
      {"Group00A=1;On\nGroup02A=7;On\n", "13 %", "88 %", 875},
      // Numbers that only a file made elsewhere can hold.
      {"Group00A=3;On\nGroup02A=-3;On\n", "0 %", "0 %", 0}};
  for (const auto& [keys, of_group_0, of_group_2, per_mille] : cases) {
    OpenScreen(std::string("[Groups]\n") + keys);
    EXPECT_EQ(form->PercentText[0].Caption(), of_group_0) << keys;
    EXPECT_EQ(form->PercentText[2].Caption(), of_group_2) << keys;
    EXPECT_EQ(form->PercentBar[2].Value(), per_mille) << keys;
  }
}

TEST_F(EditGroupsTest, TicksAndStepsChangeTheTableAndTheShares) {
  OpenScreen("[Groups]\nGroup01A=99;On\nGroup03A=49;On\nGroup03B=2;On\n");
  const std::tuple<int, int, const char*> cases[] = {{+1, 0, "000"}, {-1, 99, "099"}};
  for (const auto& [step, after, text] : cases) {
    Step(form->VScroll2[1], step);
    EXPECT_EQ(groups->Repetitions(1), after);
    EXPECT_EQ(form->Text1[1].Text(), text);
  }
  EXPECT_EQ(form->PercentText[3].Caption(), "34 %");  // 51 of 150, though 3B is never sent
  form->Check1[1].Press();
  EXPECT_FALSE(groups->Active(1));
  EXPECT_EQ(form->Check1[1].ColourTone(), CheckBox::Tone::kOff);
  EXPECT_EQ(form->PercentText[3].Caption(), "100 %");
}

TEST_F(EditGroupsTest, SelectedGroupFollowsFocusAndClick) {
  OpenScreen(kLocalB);
  EXPECT_EQ(SelectedGroup(), "0A");
  form->window.MoveFocus(&form->VScroll2[20]);
  EXPECT_EQ(SelectedGroup(), "4B");
  form->Check1[3].Press();
  Step(form->VScroll2[9], +1);
  EXPECT_EQ(SelectedGroup(), "9A");
  form->Check1[3].Press();  // has kept the focus
  EXPECT_EQ(SelectedGroup(), "3A");
  // A read is not the operator's choice.
  Hold(kEnableCode, "0109", 30);
  form->Command13.Press();
  EXPECT_EQ(SelectedGroup(), "3A");
}

TEST_F(EditGroupsTest, SendAllSendsWhatTheCoderModelHasUntilARefusal) {
  for (const bool b_groups : {false, true}) {
    SCOPED_TRACE(b_groups);
    OpenScreen(std::string(b_groups ? kLocalB : kLocal) +
               "[Groups]\nGroup00A=99;On\nGroup02A=16;Off\nGroup15B=5;On\n");
    LinkError = 5;  // of an earlier run
    form->Command1.Press();
    EXPECT_EQ(port.written[0], (Hex("02 09 00 30 31 36 33 03 0C")));
    EXPECT_EQ(SentGroups(), FirstGroups(b_groups ? 32 : 16));
    EXPECT_EQ(Held(kEnableCode, 2), "0010");
    EXPECT_EQ(Held(kEnableCode, 31), b_groups ? "0105" : "0000");
  }
  port.answer = [](const Bytes& frame) { return frame[2] == 5 ? kPointerTooBig : Bytes{0x06}; };
  form->Command1.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(6));
  EXPECT_EQ(Boxes(), std::vector<std::string>{"Enable: [RDS] pointer value too big"});
}

TEST_F(EditGroupsTest, OneWayLinkHasTheAddressRuleAndBursts) {
  OpenScreen("[Serial Setup]\nBurst=3\n");
  EXPECT_TRUE(form->Command12.Visible());
  EXPECT_FALSE(form->Command13.Visible() || form->Command2.Visible());
  ExpectAddressRule({&form->Command1, &form->Command12, &form->Command11});
  form->Command11.Press();
  EXPECT_EQ(SentGroups(), std::vector<int>{0});
  form->Command12.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(16, 3));
  form->Command1.Press();  // once, whatever the burst
  EXPECT_EQ(SentGroups(), FirstGroups(16));
  port.Wrote = [this] { EscPressed = port.written.size() == 20; };
  form->Command12.Press();
  EXPECT_EQ(SentGroups().size(), 20U);  // the frame that was being written is the last
}

TEST_F(EditGroupsTest, OneGroup) {
  const std::tuple<const char*, std::uint8_t, bool> cases[] = {
      {kLocal, 15, true}, {kLocal, 16, false}, {kLocalB, 31, true}};
  for (const auto& [file, group, travels] : cases) {
    SCOPED_TRACE(group);
    OpenScreen(file);
    EXPECT_FALSE(form->Command12.Visible());
    EXPECT_EQ(form->Check1[group].Enabled(), travels);
    groups->SetActive(group, true);
    groups->SetRepetitions(group, 11);
    form->window.MoveFocus(&form->Text1[group]);
    form->Command11.Press();
    form->Command2.Press();
    EXPECT_EQ(SentGroups(), travels ? std::vector<int>(2, group) : std::vector<int>{});
    EXPECT_EQ(Held(kEnableCode, group), travels ? "010B" : "0000");
    EXPECT_TRUE(form->window.Enabled());
  }
}

TEST_F(EditGroupsTest, ReadAllStoresUntilTheFirstFailure) {
  OpenScreen(std::string(kLocalB) + "[Groups]\nGroup03A=20;On\nGroup15B=8;On\n");
  Hold(kEnableCode, "01FF", 2);
  Hold(kEnableCode, "0000", 3);
  Hold(kEnableCode, "0001", 31);
  port.answer = [this](const Bytes& f) { return f[2] == 3 ? kPointerTooBig : the_coder->Take(f); };
  form->Command13.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(4));
  EXPECT_EQ(groups->Repetitions(2), 255);
  EXPECT_TRUE(groups->Active(3));  // neither stored nor shown
  EXPECT_EQ(form->Text1[3].Text(), "020");
  EXPECT_EQ(form->Check1[3].ColourTone(), CheckBox::Tone::kOn);
  EXPECT_EQ(form->PercentText[2].Caption(), "90 %");  // 255 of 283

  port.answer = nullptr;
  form->Command13.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(32));
  EXPECT_FALSE(groups->Active(3));
  EXPECT_EQ(form->Check1[3].ColourTone(), CheckBox::Tone::kOff);
  EXPECT_EQ(form->Text1[31].Text(), "001");
}

}  // namespace
}  // namespace corvalis::test
