// The tab of AF method B, driven through its controls against the Coder in memory.

#include "programme/af_screen.h"

namespace corvalis::test {
namespace {

TEST_F(AfTabsTest, BoxesOfMethodB) {
  OpenScreen(kOneWay + kMethodB + "List00=100;99;101;\n");
  EXPECT_EQ(ShownB(4), "100.0 099.0 101.0 000.0 ");
  const std::tuple<int, const char*, const char*, bool> cases[] = {
      {1, "1079", "107.9", true},   {1, "107.95", "107.9", true}, {1, "108", "107.9", false},
      {1, "87.4", "107.9", false},  {1, "87.65", "087.6", true},  {1, "87,5", "087.5", true},
      {0, "108.0", "100.0", false}, {0, "98.7", "098.7", true},   {1, "", "087.5", false},
      {2, "0", "000.0", true}};
  for (const auto& [box, typed, shown, taken] : cases) {
    EXPECT_EQ(Enter(BoxB(box), typed), taken) << typed;
    EXPECT_EQ(BoxB(box).Text(), shown) << typed;
    EXPECT_EQ(Boxes(), taken ? no_boxes : std::vector<std::string>{kWarning}) << typed;
  }
  EXPECT_EQ(form->SSTab1.Tab(), form->kAfB);
  EXPECT_EQ(AfBData::GetMaxFreq(), 107.9F);
  form->window.MoveFocus(&BoxB(1));
  BoxB(1).SetText("107.9");
  BoxB(1).Select(3, 2);
  BoxB(1).Type("9");
  EXPECT_EQ(BoxB(1).Text(), "107.9");
  EXPECT_EQ(BoxB(1).SelStart(), 5);
  dialogs.beeps = 0;
  BoxB(1).Type("5");
  EXPECT_EQ(dialogs.beeps, 1);
  BoxB(1).SelectAll();
  BoxB(1).Type("5");
  form->window.Close();
  EXPECT_FALSE(form->window.Visible());
  EXPECT_EQ(Boxes(), std::vector<std::string>{kWarning});
  form->Load();

  const auto& marks = form->af_b.AfBBandStrip.Marks();
  EXPECT_TRUE(marks.at(0).main);
  EXPECT_EQ(marks.at(1).text, "87.5");
  afBData->SetListFreq(0, 12, 104.3F);
  EXPECT_TRUE(Enter(BoxB(0), "0"));  // no main frequency, no alternatives of the screen
  EXPECT_EQ(afBData->ListFreq(0, 12), 104.3F);
  EXPECT_EQ(ShownB(4), "000.0 000.0 000.0 000.0 ");
  EXPECT_EQ(afBData->ListFreq(0, 0), 0);
  EXPECT_TRUE(marks.empty());
}

TEST_F(AfTabsTest, ListsAreFoundByNumberByStepsAndByDescription) {
  OpenScreen(kOneWay + kMethodB + "List02=100;99;\n");
  AfBTab& tab = form->af_b;
  const auto at = [&tab] { return tab.Text1.Text() + "/" + tab.Combo2.Text(); };
  Step(tab.VScroll1, -1);
  EXPECT_EQ(at(), "02/");
  EXPECT_EQ(ShownB(2), "100.0 099.0 ");
  EXPECT_EQ(tab.AfBBandStrip.Marks().size(), 2U);
  Step(tab.VScroll1, +1);
  EXPECT_EQ(at(), "00/");
  for (const auto& [typed, shown] :
       std::vector<std::pair<const char*, const char*>>{{"2", "02"}, {"3", "02"}, {"1.", "01"}}) {
    Enter(tab.Text1, typed);
    EXPECT_EQ(tab.Text1.Text(), shown);
  }
  form->window.MoveFocus(&tab.Combo2);
  tab.Combo2.TypeText("Hill");
  EXPECT_EQ(tab.Combo2.Index(), 1);  // where Down goes on from
  tab.Combo2.Choose(2);              // the text was list 1's
  EXPECT_EQ(at(), "02/");
  tab.Combo2.TypeText("Valley");
  EXPECT_EQ(tab.Combo2.Entries(), (std::vector<std::string>{"", "Hill", "Valley"}));
  EXPECT_EQ(afBData->Descr(2), "Valley");
  EXPECT_EQ(at(), "02/Valley");
  EXPECT_EQ(tab.Combo2.Index(), 2);
  Step(tab.VScroll1, -1);
  EXPECT_EQ(at(), "01/Hill");
}

TEST_F(AfTabsTest, ButtonsOfMethodBOneWay) {
  OpenScreen(kOneWay + kMethodB + "List02=100;99;\n");
  AfBTab& tab = form->af_b;
  EXPECT_FALSE(tab.Command4.Visible() || tab.Command5.Visible());
  ExpectAddressRule({&tab.Command2, &tab.Command1, &tab.Command3});
  const double before = time.Elapsed();
  tab.Command3.Press();
  EXPECT_EQ(SentLists(), (std::vector<int>{0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2}));
  EXPECT_NEAR(time.Elapsed() - before, 12 * 0.2, 0.2);
  Step(tab.VScroll1, -1);
  tab.Command2.Press();
  EXPECT_EQ(SentLists(), std::vector<int>{2});
}

TEST_F(AfTabsTest, ButtonsOfMethodBOnATwoWayLink) {
  OpenScreen(kLocal + kMethodB + "List00=100;99;\n");
  AfBTab& tab = form->af_b;
  EXPECT_FALSE(tab.Command3.Visible());
  EXPECT_EQ(afBData->MaxAfBListNum(), 100);  // the Coder's count
  const double before = time.Elapsed();
  tab.Command1.Press();
  EXPECT_EQ(Written().size(), 100U);
  EXPECT_NEAR(time.Elapsed() - before, 100 * 0.2, 0.5);
  Step(tab.VScroll1, 7);
  Hold(kAf, Held(kAf), 7);
  tab.Command4.Press();
  EXPECT_EQ(ShownB(3), "100.0 099.0 000.0 ");
  tab.Command5.Press();
  EXPECT_EQ(Written().size(), 101U);
  EXPECT_EQ(afBData->MainFreq(0), 100);
  Answer(Hex("15 02 00 02 03 03"));
  tab.Command5.Press();
  EXPECT_EQ(Written().size(), 1U);
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(afBData->ListFreq(0, 5), 87.5F);
  EXPECT_EQ(ShownB(3), "100.0 099.0 000.0 ");
}

}  // namespace
}  // namespace corvalis::test
