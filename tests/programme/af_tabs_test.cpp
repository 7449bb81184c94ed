// The tab of AF method A, and the lists of both in the file, against the Coder in memory.

#include "programme/af_screen.h"

namespace corvalis::test {
namespace {

TEST_F(AfTabsTest, TheTabOfTheMethodShows) {
  OpenScreen(kLocal);
  EXPECT_EQ(Shown(), "A");
  OpenScreen(kLocal + kMethodB);
  EXPECT_EQ(Shown(), "B");
}

TEST_F(AfTabsTest, LeavingABoxOfMethodA) {
  OpenScreen(kLocal);
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"87,6", "087.600", true}, {"8762", "087.600", false}, {"107.975", "107.975", true},
      {"160", "153", true},      {"535", "531", true},       {"100.13", "531", false},
      {"87.45", "531", false},   {"0", "000.000", true},     {"1602", "1602", true},
      {"", "1602", false},       {"87.5", "087.500", true}};
  for (const auto& [typed, shown, taken] : cases) {
    EXPECT_EQ(Enter(BoxA(1), typed), taken) << typed;
    EXPECT_EQ(BoxA(1).Text(), shown) << typed;
    EXPECT_EQ(Boxes(), taken ? no_boxes : std::vector<std::string>{kWarning}) << typed;
  }
  EXPECT_EQ(form->SSTab1.Tab(), form->kAfA);  // brought to the front by what was refused
  const auto& marks = form->af_a.AfABandStrip.Marks();
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks[0].text, "87.5");

  // A box that is left as it is shown is that number.
  afAData->SetFreq(2, 87.5999F);
  form->af_a.Open();
  EXPECT_TRUE(Enter(BoxA(2), "087.600"));
  EXPECT_EQ(afAData->Freq(2), 87.6F);
  EXPECT_TRUE(Enter(BoxA(2), "0"));

  dialogs.beeps = 0;
  form->window.MoveFocus(&BoxA(1));
  BoxA(1).Select(7, 0);
  BoxA(1).Type("1.x\b\b2");
  EXPECT_EQ(BoxA(1).Text(), "087.52");
  EXPECT_EQ(dialogs.beeps, 3);
}

TEST_F(AfTabsTest, EachEntryOfTwoBytesCostsABoxAtTheEnd) {
  OpenScreen(kLocal + kA + "100.000;531;087.525;\n");
  EXPECT_EQ(ShownA(4), "100.000 531 087.525 000.000 ");
  EXPECT_EQ(Available(), 23);
  EXPECT_TRUE(Enter(BoxA(22), "101"));
  EXPECT_TRUE(Enter(BoxA(3), "153"));  // takes the box of the 101
  EXPECT_EQ(Available(), 22);
  EXPECT_EQ(afAData->Freq(22), 0);
  EXPECT_EQ(BoxA(22).Text(), "000.000");
  EXPECT_FALSE(Enter(BoxA(21), "153"));  // would have no room
  EXPECT_EQ(BoxA(21).Text(), "000.000");
  EXPECT_EQ(Boxes(), std::vector<std::string>{kWarning});
  EXPECT_TRUE(Enter(BoxA(20), "153"));
  EXPECT_EQ(Available(), 21);
  EXPECT_TRUE(form->window.MoveFocus(&BoxA(20)));
  EXPECT_TRUE(form->window.MoveFocus(nullptr));  // though it could not be entered a second time
  EXPECT_TRUE(Enter(BoxA(4), "153"));  // takes the box of the last pair, whose room is free
  EXPECT_EQ(BoxA(20).Text(), "000.000");
  EXPECT_EQ(Available(), 20);
  EXPECT_TRUE(Enter(BoxA(5), "101"));  // from the next entry on
  EXPECT_EQ(Available(), 21);
  EXPECT_TRUE(Enter(BoxA(1), "0"));
  EXPECT_EQ(Available(), 22);
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(AfTabsTest, ClosingIsRefusedWhileABoxOfMethodAIsWrong) {
  OpenScreen(kLocal + kA + "87.5;87.58;\n");
  EXPECT_EQ(BoxA(1).Text(), "087.580");
  form->window.Close();
  EXPECT_EQ(Boxes(), std::vector<std::string>{kWarning});
  EXPECT_EQ(form->SSTab1.Tab(), form->kAfA);
  EXPECT_TRUE(BoxA(1).HasFocus());
  BoxA(1).SelectAll();
  BoxA(1).Type("99");
  form->window.MoveFocus(&BoxA(2));
  BoxA(2).SelectAll();
  BoxA(2).Type("5");
  form->window.Close();
  EXPECT_EQ(Boxes(), std::vector<std::string>{kWarning});  // once
  EXPECT_TRUE(form->window.Visible());
  form->window.Close();
  EXPECT_FALSE(form->window.Visible());

  // Where its tab does not show, nobody could mend it.
  OpenScreen(kLocal + kMethodB + kA + "87.5;87.58;\n");
  form->window.Close();
  EXPECT_EQ(Boxes(), no_boxes);
  EXPECT_FALSE(form->window.Visible());
  OpenScreen(kLocal);  // nor where the box can't be got at
  afAData->SetFreq(24, 87.58F);
  form->af_a.Open();
  form->window.Close();
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(AfTabsTest, TheFirstSendOfARunEmptiesAllOtherLists) {
  OpenScreen(kLocal + kA + "0;100;87.525;99;\n");
  the_coder->SetItem(kAf, 7, Bytes(52, '0'));
  const double before = time.Elapsed();
  double first_frame = 0;
  port.Wrote = [&] {
    if (port.written.size() == 3) first_frame = time.Elapsed() - before;
  };
  form->af_a.Command11.Press();
  port.Wrote = {};
  EXPECT_EQ(SentLists(), UpTo(99, true));
  EXPECT_LT(first_frame, 0.1);  // no pause before the first, and one behind each
  EXPECT_NEAR(time.Elapsed() - before, 99 * 0.2, 0.5);
  EXPECT_EQ(Held(kAf, 7), std::string("CDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCD"));
  EXPECT_EQ(Held(kAf).substr(0, 12), "E47DFD0073CD");  // arranged
  EXPECT_EQ(ShownA(4), "100.000 087.525 099.000 000.000 ");

  afAData->GetIni();  // another file is opened: not again
  afAData->SetFreq(4, 531);
  form->af_a.Command11.Press();
  EXPECT_EQ(SentLists(), UpTo(0, false));
  EXPECT_EQ(Available(), 24);  // sending leaves the boxes as they are, reading does not
  form->af_a.Command13.Press();
  EXPECT_EQ(ShownA(4), "100.000 087.525 531 099.000 ");
  EXPECT_EQ(Available(), 23);
}

TEST_F(AfTabsTest, EmptyingThatFailedIsDoneAgain) {
  OpenScreen(kLocal + kA + "100;\n");
  // The list itself is refused, then the count, then the third of the others; then ESC.
  int refused = 0;
  int countdown = 0;
  port.line = nullptr;
  port.answer = [&](const Bytes& frame) {
    if (countdown-- == 0) return Hex("15 02 00 02 03 03");
    time.After(0.01, [this, bytes = the_coder->Take(frame)] { port.Receive(bytes); });
    return Bytes{};
  };
  for (const auto& [frames, at] : std::vector<std::pair<std::vector<int>, int>>{
           {{0}, 0}, {{0, -1}, 1}, {{0, -1, 1, 2, 3}, 4}}) {
    countdown = at;
    form->af_a.Command11.Press();
    EXPECT_EQ(SentLists(), frames);
    EXPECT_EQ(Boxes().size(), 1U) << ++refused;
  }
  countdown = -1;
  time.After(1.1, [] { EscPressed = true; });
  form->af_a.Command11.Press();
  EXPECT_LT(SentLists().size(), 10U);
  EXPECT_EQ(Boxes(), no_boxes);
  form->af_a.Command11.Press();
  EXPECT_EQ(SentLists(), UpTo(99, true));
  form->af_a.Command11.Press();
  EXPECT_EQ(SentLists(), UpTo(0, false));
}

TEST_F(AfTabsTest, OneWayTheAddressComesBeforeTheArrangingAndAHundredListsAreEmptied) {
  OpenScreen(kOneWay + kA + "0;100;\n");
  const AfATab& tab = form->af_a;
  EXPECT_EQ(afBData->MaxAfBListNum(), 100);  // nobody says how many
  EXPECT_FALSE(tab.Command13.Visible());
  EXPECT_TRUE(tab.Command12.Visible());
  ExpectAddressRule({&form->af_a.Command11, &form->af_a.Command12});
  EXPECT_EQ(afAData->Freq(0), 0);
  configData->SetBurst(0);
  form->af_a.Command12.Press();
  EXPECT_EQ(ShownA(2), "100.000 000.000 ");  // arranged, though nothing goes out
  configData->SetBurst(3);
  const double before = time.Elapsed();
  form->af_a.Command12.Press();
  std::vector<int> lists = UpTo(99, false);
  lists.insert(lists.end(), {0, 0});
  EXPECT_EQ(SentLists(), lists);
  EXPECT_NEAR(time.Elapsed() - before, 102 * 0.2, 0.5);
}

TEST_F(AfTabsTest, AFailedReadShowsTheLowestFrequencyThroughout) {
  OpenScreen(kLocal + kA + "531;\n");
  EXPECT_EQ(Available(), 24);
  Answer(Hex("15 02 00 02 03 03"));
  form->af_a.Command13.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(BoxA(0).Text() + BoxA(24).Text(), "087.500087.500");
  EXPECT_EQ(Available(), 25);
  afAData->SetFreq(3, 0);
  LinkOpen = false;
  form->af_a.Command13.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(BoxA(3).Text(), "087.500");
}

TEST_F(AfTabsTest, TheFileKeepsTheLists) {
  OpenScreen(kLocal + kA + "87.6;107.975;160.5;1602;50;-3;x;1e3;100.1\n");
  EXPECT_EQ(ShownA(9), "087.600 107.975 161 1602 050 -003 000.000 000.000 100.100 ");
  afAData->SetIni();
  std::string stored = "087.600;107.975;161;1602;";
  for (const char* rest : {"000.000;", "000.000;", "000.000;", "000.000;", "100.100;"})
    stored += rest;
  for (int i = 9; i < air::kAfEntries; ++i) stored += "000.000;";
  EXPECT_EQ(ReadIniKey("AF Method A", "FreqList"), stored);
  // Nothing of the file before stays, whatever the fields are.
  for (const auto& [list, second] : {std::pair{"88,5; 99.9 ;", 99.9F}, {"", 0.F}}) {
    WriteIniKey("AF Method A", "FreqList", list);
    afAData->GetIni();
    EXPECT_EQ(std::tuple(afAData->Freq(0), afAData->Freq(1), afAData->Freq(8)),
              std::tuple(0.F, second, 0.F));
  }

  // The description is read as the thirteenth alternative, and is no description any more.
  afBData->SetMainFreq(1, 99.5F);
  afBData->SetListFreq(1, 11, 87.6F);
  afBData->SetDescr(1, "104.3");
  afBData->SetDescr(2, "a;b");
  afBData->SetIni();
  const std::string zeros = "000.0;000.0;000.0;000.0;000.0;000.0;000.0;000.0;000.0;000.0;000.0;";
  EXPECT_EQ(ReadIniKey("AF Method B", "List01"), "099.5;" + zeros + "087.6;104.3");
  EXPECT_EQ(ReadIniKey("AF Method B", "MaxAfBListNum"), "100");
  afBData->GetIni();
  EXPECT_EQ(afBData->Descr(1), "");
  EXPECT_EQ(afBData->ListFreq(1, 12), 104.3F);
  EXPECT_EQ(afBData->Descr(2), "b");
  afBData->SetOneRds(1);
  EXPECT_EQ(Held(kAf, 1).substr(0, 14),
            "E5780178"
            "78A8CD");
  afBData->SetCurrentAfBListNum(2);
  WriteIniKey("AF Method B", "List01", "");
  afBData->GetIni();
  EXPECT_EQ(afBData->MainFreq(1) + afBData->CurrentAfBListNum(), 0);
}

}  // namespace
}  // namespace corvalis::test
