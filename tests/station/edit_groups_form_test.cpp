// The group sequence screen, driven through its controls against the Coder in memory.

#include "station/edit_groups_form.h"

#include <gtest/gtest.h>

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

TEST_F(EditGroupsTest, OpensOnTheTable) {
  OpenScreen(std::string(kLocalB) + "[Groups]\nGroup02A=07;On\nGroup15B=99;On\nGroup03A=5;Off\n");
  struct Case {
    int group;
    const char *name, *text;
    bool active;
  };
  const Case cases[] = {{2, "2A", "007", true}, {3, "3A", "005", false}, {31, "15B", "099", true}};
  for (const Case& c : cases) {
    const CheckBox& box = form->Check1[c.group];
    EXPECT_EQ(box.Caption(), c.name);
    EXPECT_EQ(box.ColourTone(), c.active ? CheckBox::Tone::kOn : CheckBox::Tone::kOff);
    EXPECT_EQ(form->Text1[c.group].Text(), c.text);
  }
}

TEST_F(EditGroupsTest, ControlsFollowTheLinkAndTheCoderModel) {
  for (const bool two_way : {true, false}) {
    OpenScreen(two_way ? kLocalB : "");
    EXPECT_EQ(form->Command12.Visible(), !two_way);
    EXPECT_EQ(form->Command13.Visible(), two_way);
    EXPECT_EQ(form->Command2.Visible(), two_way);
    EXPECT_TRUE(form->Check1[15].Enabled());
    EXPECT_EQ(form->Check1[16].Enabled(), two_way);  // by the model alone
    EXPECT_TRUE(form->VScroll2[16].Enabled());
  }
}

TEST_F(EditGroupsTest, SharesOfTheCycle) {
  struct Case {
    const char* keys;
    std::vector<std::pair<int, const char*>> shares;
    std::vector<int> per_mille;  // in the same order
  };
  const Case cases[] = {{"", {{0, "0 %"}, {15, "0 %"}}, {0, 0}},
                        {"Group00A=3;On\nGroup00B=1;On\nGroup02A=4;On\nGroup05A=9;Off\n",
                         {{0, "50 %"}, {2, "50 %"}, {5, "0 %"}},
                         {500, 500, 0}},
                        {"Group00A=1;On\nGroup01A=7;On\n", {{0, "13 %"}, {1, "88 %"}}, {125, 875}},
                        // Numbers that only a file made elsewhere can hold.
                        {"Group00A=3;On\nGroup01A=-3;On\n", {{0, "0 %"}, {1, "0 %"}}, {0, 0}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.keys);
    OpenScreen(std::string("[Groups]\n") + c.keys);
    for (std::size_t i = 0; i < c.shares.size(); ++i) {
      const auto& [number, text] = c.shares[i];
      EXPECT_EQ(form->PercentText[number].Caption(), text) << number;
      EXPECT_EQ(form->PercentBar[number].Value(), c.per_mille[i]) << number;
    }
  }
}

TEST_F(EditGroupsTest, TickingStoresColoursAndShares) {
  OpenScreen("[Groups]\nGroup04A=2;On\nGroup06B=2;On\n");
  EXPECT_EQ(form->PercentText[6].Caption(), "50 %");  // also of a group that is never sent
  form->Check1[4].Press();
  EXPECT_FALSE(groups->Active(4));
  EXPECT_EQ(form->Check1[4].ColourTone(), CheckBox::Tone::kOff);
  EXPECT_EQ(form->PercentText[6].Caption(), "100 %");
}

TEST_F(EditGroupsTest, RepetitionsWrapAround) {
  OpenScreen("[Groups]\nGroup01A=99;On\nGroup03A=51;On\n");
  struct Case {
    int group, steps, after;
    const char* text;
  };
  const Case cases[] = {{1, +1, 0, "000"}, {1, -1, 99, "099"}, {3, -2, 49, "049"}};
  for (const Case& c : cases) {
    Step(form->VScroll2[c.group], c.steps);
    EXPECT_EQ(groups->Repetitions(c.group), c.after) << c.group;
    EXPECT_EQ(form->Text1[c.group].Text(), c.text) << c.group;
  }
  EXPECT_EQ(form->PercentText[3].Caption(), "33 %");  // 49 of 99 + 49
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
  struct Case {
    bool b_groups;
    int group;
    bool travels;
  };
  const Case cases[] = {{false, 15, true}, {false, 16, false}, {true, 31, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.group);
    OpenScreen(c.b_groups ? kLocalB : kLocal);
    const auto index = static_cast<std::uint8_t>(c.group);
    Hold(kEnableCode, "0000", index);
    groups->SetActive(c.group, true);
    groups->SetRepetitions(c.group, 11);
    form->window.MoveFocus(&form->Text1[c.group]);
    form->Command11.Press();
    form->Command2.Press();
    EXPECT_EQ(SentGroups(), c.travels ? std::vector<int>(2, c.group) : std::vector<int>{});
    EXPECT_EQ(Held(kEnableCode, index), c.travels ? "010B" : "0000");
    EXPECT_TRUE(form->window.Enabled());
  }
}

TEST_F(EditGroupsTest, ReadAllStoresUntilTheFirstFailure) {
  OpenScreen(std::string(kLocalB) + "[Groups]\nGroup03A=20;On\nGroup15B=8;On\n");
  Hold(kEnableCode, "0103", 0);
  Hold(kEnableCode, "01FF", 2);
  Hold(kEnableCode, "0000", 3);
  Hold(kEnableCode, "0001", 31);
  port.answer = [this](const Bytes& f) { return f[2] == 3 ? kPointerTooBig : the_coder->Take(f); };
  form->Command13.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(4));
  EXPECT_EQ(groups->Repetitions(0), 3);
  EXPECT_EQ(form->Text1[2].Text(), "255");
  EXPECT_TRUE(groups->Active(3));  // neither stored nor shown
  EXPECT_EQ(form->Text1[3].Text(), "020");
  EXPECT_EQ(form->PercentText[2].Caption(), "89 %");  // 255 of 286

  port.answer = nullptr;
  form->Command13.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(32));
  EXPECT_FALSE(groups->Active(3));
  EXPECT_EQ(form->Check1[3].ColourTone(), CheckBox::Tone::kOff);
  EXPECT_EQ(form->Text1[31].Text(), "001");
}

}  // namespace
}  // namespace corvalis::test
