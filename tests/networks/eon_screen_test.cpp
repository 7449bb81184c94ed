// The screen of other networks.

#include <gtest/gtest.h>

#include "networks/eon_li_form.h"
#include "networks/networks_screen.h"
#include "screen/keys.h"

namespace corvalis::test {
namespace {

constexpr const char* kWarning = "WARNING! Not Allowed.";

class EonScreenTest : public NetworksTest<EonLiForm> {
 protected:
  EonScreenTest() { sizes.eon = 12; }

  // The operator goes to a box and puts a text in the place of the old one.
  void Retype(TextBox& box, const std::string& keys) {
    ASSERT_TRUE(form->window.MoveFocus(&box)) << box.Name();
    box.SelectAll();
    if (keys.empty()) box.Edit("", 0);
    box.Type(keys);
  }
  void Leave() { form->window.MoveFocus(&form->EONSSTab); }
  std::string OneWay(const std::string& more = "") const {
    return std::string(kSatellite) + "Burst=2\n" + more;
  }
};

TEST_F(EonScreenTest, HexadecimalBoxesHoldTheirDigits) {
  OpenScreen(kLocal);
  EonTab& eon = form->eon;
  Retype(eon.EonPiText, "a1B\b2g3");
  EXPECT_EQ(eon.EonPiText.Text(), "1B23");  // small letters, others and Back space are dropped
  EXPECT_EQ(eonData->Pi(0), 0x1B23);
  eon.EonPiText.Select(0, 0);
  eon.EonPiText.TypeKey('F');  // a fifth pushes out the last
  EXPECT_EQ(eon.EonPiText.Text(), "F1B2");
  EXPECT_EQ(eon.EonPiText.SelStart(), 1);
  EXPECT_EQ(eonData->Pi(0), 0xF1B2);
  Leave();
  EXPECT_EQ(Boxes(), no_boxes);

  Retype(eon.EonPiText, "ABC");
  eon.EonPinText.SetText("12");
  form->window.MoveFocus(&eon.EonPinText);
  EXPECT_EQ(Boxes(), std::vector<std::string>{kWarning});  // its own, not that of the next box
  EXPECT_EQ(form->window.Focus(), &eon.EonPiText);
  EXPECT_EQ(eon.EonPiText.SelLength(), 3);
  EXPECT_EQ(eonData->Pi(0), 0xF1B2);
  eon.EonPiText.SelectAll();
  eon.EonPiText.Paste("wxyz");
  Leave();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(eonData->Pi(0), 0xF1B2);
  Retype(eon.EonPiText, "F1B2");
  Retype(eon.EonPinText, "00FF");
  EXPECT_EQ(std::tuple(eonData->Pi(0), eonData->Pin(0)), std::tuple(0xF1B2, 0xFF));
  eon.SendEonCommand.Press();
  EXPECT_EQ(eon.EonPinText.Text(), "00FF");  // with all its digits: a send shows nothing anew

  Retype(form->li.LiLsnText, "A1");
  EXPECT_FALSE(form->window.MoveFocus(&form->EONSSTab));
  EXPECT_EQ(Boxes().size(), 1U);
  form->li.LiLsnText.SelectAll();
  form->li.LiLsnText.Paste("0A1F");
  EXPECT_EQ(form->li.LiLsnText.Text(), "0A1");
  EXPECT_EQ(liData->Lsn(), 0xA1);
  Leave();
  form->li.RefreshLiTab();
  EXPECT_EQ(form->li.LiLsnText.Text(), "A1");
}

TEST_F(EonScreenTest, FrequenciesAreJudgedWhenTheirBoxIsLeft) {
  struct Case {
    bool method_a;
    int box;
    const char *keys, *shown;
    bool warned;
    float stored;  // 99 stands before
  };
  const Case cases[] = {
      {true, 0, "87.5", "087.5", false, 87.5F},    {true, 1, "107.975", "108.0", false, 107.975F},
      {true, 1, "108", "108.0", true, 99.F},       {true, 0, "0", "000.0", false, 0.F},
      {true, 0, "", "000.0", true, 0.F},           {true, 0, "x9a8.1\b3.2", "098.3", false, 98.3F},
      {false, 0, "107.9", "107.9", false, 107.9F}, {false, 8, "107.95", "108.0", true, 99.F},
      {false, 3, "153", "153.0", true, 99.F},      {false, 9, "160", "153", false, 153.F},
      {false, 9, "279", "279", false, 279.F},      {false, 9, "280", "280", true, 99.F},
      {false, 9, "540", "540", false, 540.F},      {false, 9, "88.0", "088", true, 99.F},
      {false, 9, "1603", "1603", true, 99.F},      {false, 9, ".", "000", false, 0.F},
  };
  OpenScreen(kLocal);
  EonTab& eon = form->eon;
  for (const Case& one : cases) {
    SCOPED_TRACE(std::string(one.keys) + " in " + std::to_string(one.box));
    const auto index = static_cast<std::int16_t>(one.box);
    TextBox& box = one.method_a ? eon.EonAfAText[one.box] : eon.EonAfBText[one.box];
    one.method_a ? eonData->SetAfA(99, 0, index) : eonData->SetAfB(99, 0, index);
    eon.RefreshEonTab();
    Retype(box, one.keys);
    EXPECT_EQ(form->window.MoveFocus(&form->EONSSTab), !one.warned);
    EXPECT_EQ(Boxes(), one.warned ? std::vector<std::string>{kWarning} : no_boxes);
    EXPECT_EQ(box.Text(), one.shown);
    EXPECT_EQ(one.method_a ? eonData->AfA(0, index) : eonData->AfB(0, index), one.stored);
    eon.RefreshEonTab();  // what was refused goes
    Leave();
    Boxes();
  }
}

// A refresh shows the lists and changes none of them, whatever the boxes do under the hand.
TEST_F(EonScreenTest, SteppingChangesNoList) {
  OpenScreen(kLocal + std::string("[EON]\nTp0=On\nTa0=On\nTa1=On\nPty1=31\nPi1=A1\nPsn1=SECOND\n"));
  EonTab& eon = form->eon;
  Step(eon.EonListScroll, 1);
  EXPECT_EQ(eon.EonListText.Text(), "1");
  EXPECT_EQ(std::tuple(eon.EonTpCheck.Checked(), eon.EonTaCheck.Checked()),
            std::tuple(false, true));
  EXPECT_EQ(eon.EonPtyCombo.Index(), ListBox::kNone);
  EXPECT_EQ(eon.EonPiText.Text(), "A1");
  EXPECT_EQ(eon.EonPsnText.Text(), "SECOND  ");
  Step(eon.EonListScroll, -2);
  EXPECT_EQ(eon.EonListText.Text(), "11");
  Step(eon.EonListScroll, 1);
  EXPECT_EQ(std::tuple(eonData->Tp(0), eonData->Ta(0)), std::tuple(true, true));
  EXPECT_EQ(std::tuple(eonData->Tp(1), eonData->Ta(1), eonData->Pty(1), eonData->Pi(1)),
            std::tuple(false, true, 49, 0xA1));
  Retype(eon.EonListText, "13");  // on the way list 1, and 13 of 12
  EXPECT_EQ(eonData->CurrentList(), 1);
  EXPECT_EQ(eon.EonListText.Text(), "1");
  eon.EonListText.Edit("", 0);
  EXPECT_EQ(eonData->CurrentList(), 1);
  Leave();
  EXPECT_EQ(eon.EonListText.Text(), "1");
  eon.EonPtyCombo.Choose(3);
  EXPECT_EQ(eonData->Pty(1), 3);
}

TEST_F(EonScreenTest, ByHandAnAnnouncementNeedsTheProgrammeFlag) {
  OpenScreen(kLocal);
  EonTab& eon = form->eon;
  eon.EonTaCheck.Press();
  EXPECT_EQ(std::tuple(eon.EonTaCheck.Checked(), eonData->Ta(0)), std::tuple(false, false));
  eon.EonTpCheck.Press();
  eon.EonTaCheck.Press();
  EXPECT_EQ(std::tuple(eonData->Tp(0), eonData->Ta(0)), std::tuple(true, true));
  eon.EonTpCheck.Press();
  EXPECT_EQ(std::tuple(eon.EonTaCheck.Checked(), eonData->Tp(0), eonData->Ta(0)),
            std::tuple(false, false, false));
  // Also one that the switches have set, and that is not shown here.
  eon.EonTpCheck.Press();
  form->ta_eon.TaEonCheck[0].Press();
  EXPECT_EQ(std::tuple(eon.EonTaCheck.Checked(), eonData->Ta(0)), std::tuple(false, true));
  eon.EonTpCheck.Press();
  EXPECT_FALSE(eonData->Ta(0));
  eon.EonEnableCheck.Press();
  EXPECT_TRUE(eonData->Enable(0));
  Retype(eon.EonPsnText, "NINE CHARS");
  EXPECT_EQ(eonData->Psn(0), "NINE CHA");
  EXPECT_EQ(eon.EonPsnText.Text(), "NINE CHA");
}

TEST_F(EonScreenTest, SwitchesShowWhatWasClickedOrRead) {
  OpenScreen(kLocal + std::string("[EON]\nTa3=On\nTa0=On\nPsn3=THIRD\nPi3=A1\n"));
  TaEonTab& ta = form->ta_eon;
  ta.SendTaEonCommand.Press();  // none is selected
  ta.ReadTaEonCommand.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>{});
  EXPECT_FALSE(ta.TaEonCheck[3].Checked());  // not loaded: that is meant
  EXPECT_EQ(ta.TaEonNameLabel[3].Caption(), "THIRD     PI 00A1");
  ta.SendTaEonAllCommand.Press();
  EXPECT_EQ(Held(0x18, 3), "1");
  EXPECT_EQ(Written().size(), 10U);  // of 12 lists
  ta.ReadTaEonAllCommand.Press();
  EXPECT_TRUE(ta.TaEonCheck[3].Checked());
  EXPECT_EQ(ta.TaEonStateLabel[3].Caption(), "ON");

  ta.TaEonCheck[5].Press();  // a list without the programme flag takes it here: meant
  EXPECT_TRUE(eonData->Ta(5));
  EXPECT_EQ(ta.TaEonSelectedLabel.Caption(), "EON 5");
  Written();
  ta.SendTaEonCommand.Press();
  ASSERT_EQ(Written().size(), 1U);
  EXPECT_EQ(Held(0x18, 5), "1");
  // A read that fails shows the list all the same, and ends the run.
  ta.TaEonCheck[0].Press();
  eonData->SetTa(true, 0);
  ta.TaEonCheck[0].Press();
  eonData->SetTa(true, 0);
  LinkOpen = false;
  ta.ReadTaEonAllCommand.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_TRUE(ta.TaEonCheck[0].Checked());
  // Opened again, the switches are off, none is selected, and the lists are as they were.
  form->window.Close();
  form->Load();
  EXPECT_FALSE(ta.TaEonCheck[0].Checked());
  EXPECT_EQ(ta.TaEonSelectedLabel.Caption(), "-");
  EXPECT_TRUE(eonData->Ta(0) && eonData->Ta(5));
  // The names beside the switches are those of now.
  Retype(form->eon.EonPsnText, "NOW");
  Retype(form->eon.EonPiText, "00A1");
  form->EONSSTab.Choose(2);
  EXPECT_EQ(ta.TaEonNameLabel[0].Caption(), "NOW       PI 00A1");
}

TEST_F(EonScreenTest, SwitchesWithoutAListAreDisabled) {
  sizes.eon = 3;
  OpenScreen(kLocal);
  TaEonTab& ta = form->ta_eon;
  ta.TaEonCheck[2].Press();
  ta.TaEonCheck[3].Press();
  EXPECT_EQ(ta.TaEonSelectedLabel.Caption(), "EON 2");
  EXPECT_FALSE(ta.TaEonCheck[3].Checked());
  ta.SendTaEonAllCommand.Press();
  ta.ReadTaEonAllCommand.Press();
  EXPECT_EQ(Written().size(), 6U);
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(EonScreenTest, ReadsShowWhatCameOrTheOldList) {
  OpenScreen(kLocal);
  Hold(0x16, "READ    1000000000CDCDCDCDCDCDCDCDCDCD0000011", 0);
  Hold(0x1B, "111FFF");
  form->eon.ReadEonCommand.Press();
  EXPECT_EQ(form->eon.EonPsnText.Text(), "READ    ");
  EXPECT_TRUE(form->eon.EonTpCheck.Checked());
  form->li.ReadLiCommand.Press();
  EXPECT_EQ(form->li.LiLsnText.Text(), "FFF");
  form->li.LiLaCheck.Press();
  form->li.LiILCheck.Press();
  form->li.SendLiCommand.Press();
  EXPECT_EQ(Held(0x1B), "010FFF");
  form->li.LiEgiCheck.Press();
  form->li.SendLiCommand.Press();
  EXPECT_EQ(Held(0x1B), "000FFF");
  form->eon.EonPsnText.SetText("X");
  LinkOpen = false;
  form->eon.ReadEonAllCommand.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(form->eon.EonPsnText.Text(), "X       ");
}

TEST_F(EonScreenTest, AScreenClosedFromAShortBoxComesAgainFree) {
  OpenScreen(kLocal + std::string("[LI]\nLsn=A1\n"));
  form->window.MoveFocus(&form->li.LiLsnText);
  form->window.Close();
  EXPECT_EQ(Boxes().size(), 1U);
  form->Load();
  form->EONSSTab.Choose(2);
  EXPECT_EQ(form->EONSSTab.Tab(), 2);
  EXPECT_EQ(Boxes(), no_boxes);
}

}  // namespace
}  // namespace corvalis::test
