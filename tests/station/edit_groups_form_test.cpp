// The group sequence screen, driven through its controls against the Coder in memory.

#include "station/edit_groups_form.h"

#include <gtest/gtest.h>

#include "config/config_data.h"
#include "config/language_data.h"
#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

constexpr std::uint8_t kEnableCode = 0x09;
constexpr const char* kLocalB = "[Serial Setup]\nSatellite=Off\n[RDS Setup]\nGroups B Enable=On\n";
// The Coder's table has no such index, says the Coder.
const Bytes kPointerTooBig{0x15, 0x02, 0x00, 0x02, 0x03, 0x03};

Bytes EnableFrame(int group, const std::string& body) {
  Bytes frame{0x02, kEnableCode, static_cast<std::uint8_t>(group)};
  frame.reserve(9);
  for (const char c : body) frame.push_back(static_cast<std::uint8_t>(c));
  frame.push_back(0x03);
  std::uint8_t sum = 0;
  for (const std::uint8_t byte : frame) sum = static_cast<std::uint8_t>(sum ^ byte);
  frame.push_back(sum);
  return frame;
}

class EditGroupsTest : public LinkTest {
 protected:
  ~EditGroupsTest() override { groupsData = nullptr; }

  void OpenScreen(const std::string& file) {
    Start(file);
    Open();
    groups = std::make_unique<GroupsData>();
    groupsData = groups.get();
    form = std::make_unique<EditGroupsForm>(main_menu);
    main_menu.Show();
    form->Load();
    port.written.clear();
  }
  // The screen opens anew on another file.
  void Reopen(const std::string& file) {
    if (form == nullptr) {
      OpenScreen(file);
      return;
    }
    form->window.Close();
    WriteFile(ProgramFile(), file);
    configData->GetIni();
    groups->GetIni();
    form->Load();
  }
  void PutGroup(int group, const std::string& body) {
    the_coder->SetItem(kEnableCode, static_cast<std::uint8_t>(group),
                       Bytes(body.begin(), body.end()));
  }
  [[nodiscard]] std::string Held(int group) const {
    const Bytes item = *the_coder->Item(kEnableCode, static_cast<std::uint8_t>(group));
    return {item.begin(), item.end()};
  }
  [[nodiscard]] std::string Selected() const {
    return form->SelectedLabel.Caption().substr(std::string("Group ").size());
  }
  [[nodiscard]] std::vector<int> SentGroups() const {
    std::vector<int> sent;
    for (const Bytes& frame : port.written) sent.push_back(frame.at(2));
    return sent;
  }
  static std::vector<int> FirstGroups(int count, int passes = 1) {
    std::vector<int> all(static_cast<std::size_t>(count * passes));
    for (int i = 0; int& group : all) group = i++ % count;
    return all;
  }

  Window main_menu{this, "MainForm"};
  std::unique_ptr<GroupsData> groups;
  std::unique_ptr<EditGroupsForm> form;
};

TEST_F(EditGroupsTest, OpensOnTheTable) {
  OpenScreen(std::string(kLocalB) + "[Groups]\nGroup02A=07;On\nGroup15B=99;On\nGroup03A=5;Off\n");
  struct Case {
    int group;
    const char *name, *text;
    bool active;
  };
  const Case cases[] = {{0, "0A", "000", false},
                        {2, "2A", "007", true},
                        {3, "3A", "005", false},
                        {16, "0B", "000", false},
                        {31, "15B", "099", true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const CheckBox& box = form->Check1[c.group];
    EXPECT_EQ(box.Caption(), c.name);
    EXPECT_EQ(box.Checked(), c.active);
    EXPECT_EQ(box.ColourTone(), c.active ? CheckBox::Tone::kOn : CheckBox::Tone::kOff);
    EXPECT_EQ(form->Text1[c.group].Text(), c.text);
    EXPECT_EQ(groups->Active(c.group), c.active);
  }
  EXPECT_EQ(Selected(), "0A");
  form->Text1[2].Type("5");
  EXPECT_EQ(form->Text1[2].Text(), "007");

  EXPECT_FALSE(main_menu.Enabled());
  form->window.Close();
  EXPECT_TRUE(main_menu.Enabled());
}

TEST_F(EditGroupsTest, ControlsFollowTheLinkAndTheCoderModel) {
  struct Case {
    const char* file;
    bool two_way, b_groups;
  };
  const Case cases[] = {{"[Serial Setup]\nSatellite=Off\n", true, false},
                        {"[RDS Setup]\nGroups B Enable=On\n", false, true},
                        {kLocalB, true, true},
                        {"", false, false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    Reopen(c.file);
    EXPECT_TRUE(form->Command1.Visible());
    EXPECT_TRUE(form->Command11.Visible());
    EXPECT_EQ(form->Command12.Visible(), !c.two_way);
    EXPECT_EQ(form->Command13.Visible(), c.two_way);
    EXPECT_EQ(form->Command2.Visible(), c.two_way);
    EXPECT_TRUE(form->Check1[15].Enabled());
    for (const int group : {16, 31}) {
      EXPECT_EQ(form->Check1[group].Enabled(), c.b_groups);
      EXPECT_TRUE(form->Text1[group].Enabled());
      EXPECT_TRUE(form->VScroll2[group].Enabled());
    }
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
                        {"Group15B=1;On\n", {{15, "100 %"}, {14, "0 %"}}, {1000, 0}},
                        {"Group00A=1;On\nGroup01A=1;On\nGroup02A=1;On\n", {{1, "33 %"}}, {333}},
                        {"Group00A=1;On\nGroup01A=7;On\n", {{0, "13 %"}, {1, "88 %"}}, {125, 875}},
                        {"Group00A=0;On\nGroup01A=199;On\n", {{0, "0 %"}, {1, "100 %"}}, {0, 1000}},
                        {"Group00A=1;On\nGroup01A=199;On\n", {{0, "1 %"}, {1, "100 %"}}, {5, 995}},
                        // Numbers that only a file made elsewhere can hold.
                        {"Group00A=3;On\nGroup01A=-5;On\n", {{0, "-150 %"}, {1, "0 %"}}, {0, 0}},
                        {"Group00A=3;On\nGroup01A=-3;On\n", {{0, "0 %"}, {1, "0 %"}}, {0, 0}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.keys);
    Reopen(std::string("[Groups]\n") + c.keys);
    for (std::size_t i = 0; i < c.shares.size(); ++i) {
      const auto& [number, text] = c.shares[i];
      EXPECT_EQ(form->PercentText[number].Caption(), text) << number;
      EXPECT_EQ(form->PercentBar[number].Value(), c.per_mille[i]) << number;
    }
  }
}

TEST_F(EditGroupsTest, TickingStoresColoursAndShares) {
  OpenScreen(std::string(kLocalB) + "[Groups]\nGroup04A=2;On\nGroup06B=2;Off\n");
  form->Check1[22].Press();
  EXPECT_TRUE(groups->Active(22));
  EXPECT_EQ(form->Check1[22].ColourTone(), CheckBox::Tone::kOn);
  EXPECT_EQ(form->PercentText[6].Caption(), "50 %");
  EXPECT_EQ(Selected(), "6B");
  form->Check1[4].Press();
  EXPECT_FALSE(groups->Active(4));
  EXPECT_EQ(form->Check1[4].ColourTone(), CheckBox::Tone::kOff);
  EXPECT_EQ(form->PercentText[4].Caption(), "0 %");
  EXPECT_EQ(form->PercentText[6].Caption(), "100 %");
  EXPECT_EQ(Selected(), "4A");
}

TEST_F(EditGroupsTest, RepetitionsWrapAround) {
  OpenScreen("[Groups]\nGroup01A=99;On\nGroup02A=0;On\nGroup03A=50;On\nGroup04A=150;On\n");
  struct Case {
    int group;
    bool up;
    int after;
    const char* text;
  };
  const Case cases[] = {{1, true, 0, "000"},  {1, false, 99, "099"}, {2, false, 99, "099"},
                        {2, true, 0, "000"},  {3, true, 51, "051"},  {3, false, 50, "050"},
                        {4, false, 49, "049"}};
  for (const Case& c : cases) {
    if (c.up) {
      form->VScroll2[c.group].PressUp();
    } else {
      form->VScroll2[c.group].PressDown();
    }
    EXPECT_EQ(groups->Repetitions(c.group), c.after) << c.group;
    EXPECT_EQ(form->Text1[c.group].Text(), c.text) << c.group;
    EXPECT_EQ(Selected(), GroupName(c.group));
  }
  EXPECT_EQ(form->PercentText[3].Caption(), "25 %");  // 50 of 99 + 0 + 50 + 49
}

TEST_F(EditGroupsTest, SelectedGroupFollowsFocusAndClick) {
  OpenScreen(kLocalB);
  form->window.MoveFocus(&form->Text1[7]);
  EXPECT_EQ(Selected(), "7A");
  form->window.MoveFocus(&form->VScroll2[20]);
  EXPECT_EQ(Selected(), "4B");
  form->Check1[3].Press();
  EXPECT_EQ(Selected(), "3A");
  form->VScroll2[9].PressUp();
  EXPECT_EQ(Selected(), "9A");
  form->Check1[3].Press();  // has kept the focus
  EXPECT_EQ(Selected(), "3A");

  // Neither a read nor a screen that opens is the operator's choice.
  form->window.MoveFocus(&form->Text1[7]);
  PutGroup(30, "0109");
  form->Command13.Press();
  EXPECT_TRUE(form->Check1[30].Checked());
  EXPECT_EQ(Selected(), "7A");
  groups->SetActive(12, true);
  form->window.Close();
  form->Load();
  EXPECT_TRUE(form->Check1[12].Checked());
  EXPECT_EQ(Selected(), "0A");
}

TEST_F(EditGroupsTest, SendAllSendsWhatTheCoderModelHas) {
  for (const bool b_groups : {false, true}) {
    SCOPED_TRACE(b_groups);
    Reopen(std::string(b_groups ? kLocalB : kLocal) +
           "[Groups]\nGroup00A=99;On\nGroup02A=16;Off\nGroup15B=5;On\n");
    port.written.clear();
    LinkError = 5;  // of an earlier run
    bool disabled = false;
    port.Wrote = [&] { disabled = !form->window.Enabled(); };
    form->Command1.Press();
    EXPECT_EQ(SentGroups(), FirstGroups(b_groups ? 32 : 16));
    EXPECT_EQ(port.written[0], (Hex("02 09 00 30 31 36 33 03 0C")));
    EXPECT_EQ(port.written[2], EnableFrame(2, "0010"));
    EXPECT_EQ(Held(0), "0163");
    EXPECT_EQ(Held(31), b_groups ? "0105" : "0000");
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(form->window.Enabled());
    EXPECT_TRUE(dialogs.boxes.empty());
  }
}

TEST_F(EditGroupsTest, RefusedGroupEndsTheRun) {
  OpenScreen(kLocalB);
  port.answer = [](const Bytes& frame) { return frame[2] == 5 ? kPointerTooBig : Bytes{0x06}; };
  form->Command1.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(6));
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "Enable: [RDS] pointer value too big");
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(EditGroupsTest, BurstMakesItsPassesAndEndsAtAnAbort) {
  OpenScreen("[Serial Setup]\nBurst=3\n[Groups]\nGroup15B=5;On\n");
  AddressSent = true;
  form->Command12.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(16, 3));

  port.written.clear();
  form->Command1.Press();  // once, whatever the burst
  EXPECT_EQ(SentGroups(), FirstGroups(16));

  port.written.clear();
  port.Wrote = [this] { EscPressed = port.written.size() == 20; };
  form->Command12.Press();
  EXPECT_EQ(port.written.size(), 20U);  // the frame that was being written is the last
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(EditGroupsTest, AddressRuleOnAOneWayLink) {
  OpenScreen("");
  int shows = 0;
  Window* front = nullptr;
  struct Host : ScreenHost {
    Host(int& count, Window*& last) : shows(count), front(last) { Window::SetHost(this); }
    ~Host() override { Window::SetHost(nullptr); }
    void Shown(Window& window) override { ++shows, front = &window; }
    void Gone(Window& /*window*/) override { front = nullptr; }
    int& shows;
    Window*& front;
  } host(shows, front);
  struct Case {
    Button& button;
    bool box_over_transfer_screen;
  };
  const Case cases[] = {{form->Command1, false}, {form->Command12, false}, {form->Command11, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.button.Name());
    dialogs.boxes.clear();
    bool over = false;
    dialogs.Shown = [&] { over = front != nullptr && front->Name() == "SerialCommunicationForm"; };
    c.button.Press();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, "Before send Address");
    EXPECT_EQ(dialogs.boxes[0].title, "Communication Management");
    EXPECT_EQ(over, c.box_over_transfer_screen);
    EXPECT_TRUE(form->window.Enabled());
    EXPECT_EQ(front, nullptr);
  }
  EXPECT_TRUE(port.written.empty());
  EXPECT_EQ(shows, 1);
}

TEST_F(EditGroupsTest, OneGroup) {
  struct Case {
    bool b_groups;
    int group;
    bool travels;
  };
  const Case cases[] = {{false, 0, true},   {false, 15, true}, {false, 16, false},
                        {false, 31, false}, {true, 16, true},  {true, 31, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.group);
    Reopen(std::string(c.b_groups ? kLocalB : kLocal));
    groups->SetActive(c.group, true);
    groups->SetRepetitions(c.group, 11);
    form->window.MoveFocus(&form->Text1[c.group]);
    port.written.clear();
    form->Command11.Press();
    form->Command2.Press();
    if (c.travels) {
      const auto index = static_cast<std::uint8_t>(c.group);
      const Bytes request{0x02, 0x09, index, 0x03, static_cast<std::uint8_t>(0x08 ^ index)};
      EXPECT_EQ(port.written, (std::vector<Bytes>{EnableFrame(c.group, "010B"), request}));
    } else {
      EXPECT_TRUE(port.written.empty());
    }
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_TRUE(form->window.Enabled());
  }
  // On a one-way link that has been addressed, one frame.
  Reopen("");
  AddressSent = true;
  port.written.clear();
  form->Command11.Press();
  EXPECT_EQ(SentGroups(), std::vector<int>{0});
}

TEST_F(EditGroupsTest, ReadAllStoresUntilTheFirstFailure) {
  OpenScreen(std::string(kLocalB) + "[Groups]\nGroup03A=20;On\nGroup15B=8;On\n");
  PutGroup(0, "0103");
  PutGroup(2, "01FF");
  PutGroup(3, "0000");
  PutGroup(31, "0001");
  port.answer = [this](const Bytes& f) { return f[2] == 3 ? kPointerTooBig : the_coder->Take(f); };
  form->Command13.Press();
  EXPECT_EQ(SentGroups(), FirstGroups(4));
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(groups->Repetitions(0), 3);
  EXPECT_EQ(form->Text1[2].Text(), "255");
  EXPECT_TRUE(groups->Active(3));  // neither stored nor shown
  EXPECT_EQ(form->Text1[3].Text(), "020");
  EXPECT_TRUE(form->Check1[31].Checked());
  EXPECT_EQ(form->PercentText[2].Caption(), "89 %");  // 255 of 286

  port.answer = nullptr;
  form->Command13.Press();
  EXPECT_EQ(port.written.size(), 36U);
  EXPECT_FALSE(groups->Active(3));
  EXPECT_EQ(form->Check1[3].ColourTone(), CheckBox::Tone::kOff);
  EXPECT_EQ(form->Text1[31].Text(), "001");
  EXPECT_FALSE(groups->Active(31));
  EXPECT_EQ(form->PercentText[15].Caption(), "0 %");
}

TEST_F(EditGroupsTest, ReadOneAbortedLeavesTheGroup) {
  OpenScreen(std::string(kLocal) + "[Groups]\nGroup05A=20;On\n");
  form->window.MoveFocus(&form->Text1[5]);
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.After(3, [] { EscPressed = true; });
  form->Command2.Press();
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(form->Check1[5].Checked());
  EXPECT_EQ(form->Text1[5].Text(), "020");
  EXPECT_EQ(form->PercentText[5].Caption(), "100 %");
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(EditGroupsTest, GroupsOfVersionBOutliveACoderThatLacksThem) {
  OpenScreen("[Groups]\nGroup00A=1;On\nGroup07B=3;On\n");
  EXPECT_EQ(form->PercentText[7].Caption(), "75 %");
  form->Check1[23].Press();
  EXPECT_TRUE(groups->Active(23));
  groups->SetIni();
  EXPECT_EQ(profiles.Read(ProgramFile(), "Groups", "Group07B"), "03;On");
}

}  // namespace
}  // namespace corvalis::test
