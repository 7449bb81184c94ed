// What the cells and the boxes of the programme's lists make of what is typed.

#include <gtest/gtest.h>

#include "programme/programme_screen.h"
#include "screen/keys.h"

namespace corvalis::test {
namespace {

constexpr const char* kLists =
    "[RDS Setup]\nPSN Pages Enable=Off\nPSN Plan Enable=On\n"
    "[PSN Pages]\nPsn00.01=05;On;OLD;\n"
    "[PSN Plan]\nPlan001=07:30;31-12-1999;On;Off;Off;Off;Off;Off;Off;1;On;\n"
    "[RT]\nRt01=12;OLD;\n"
    "[PIN]\nPin001=05;10:20;03;Off\n";

class TypingRulesTest : public ProgrammeTest {
 protected:
  void OpenLists(const std::string& more = kLists) { OpenScreen(Sized(kSatellite + more)); }
  PsnTab& Psn() const { return form->psn; }
  // The row as it is shown, from its column 1.
  static std::string Row(const Grid& grid, int row) {
    std::string shown;
    for (std::size_t i = 1; i < grid.Columns().size(); ++i) {
      const std::string cell = grid.Shown(row, static_cast<int>(i));
      shown += (i == 1 ? "" : "|") + cell.substr(0, cell.find_last_not_of(' ') + 1);
    }
    return shown;
  }
};

TEST_F(TypingRulesTest, Cells) {
  struct Case {
    Grid& (*grid)(PsnRtPinAfForm&);
    int column;
    std::string keys;
    std::string typed;  // what the open cell holds then
    std::string left;   // the row once it has been left; empty: as it was
    int beeps = 0;
  };
  const auto psn = [](PsnRtPinAfForm& f) -> Grid& { return f.psn.DBGrid1; };
  const auto plan = [](PsnRtPinAfForm& f) -> Grid& { return f.plan.PsnPlanDBGrid; };
  const auto rt = [](PsnRtPinAfForm& f) -> Grid& { return f.rt.DBGrid3; };
  const auto pin = [](PsnRtPinAfForm& f) -> Grid& { return f.pin.DBGrid4; };
  const std::string not_opened = "not opened";
  const std::string on = "On|Off|Off|Off|Off|Off|Off|1|On";
  const std::string off = "Off|Off|Off|Off|Off|Off|Off|1|On";
  const std::string text64(64, 'R');
  const Case cases[] = {
      {psn, 0, "x", not_opened, ""},
      {psn, 1, "7", "7", "7|OLD|ON"},
      {psn, 1, "123", "12", "12|OLD|ON", 1},
      {psn, 1, "x7", "7", "7|OLD|ON", 1},
      {psn, 1, "\b", "", ""},
      {psn, 2, "A", "A", "5|A|ON"},
      {psn, 2, " ABCDEFGH\b\bIJK", " ABCDEIJ", "5| ABCDEIJ|ON", 2},
      {psn, 3, " ", not_opened, "5|OLD|Off"},
      {psn, 3, "  ", not_opened, ""},
      {psn, 3, "x", not_opened, ""},

      {plan, 0, "1", not_opened, ""},
      {plan, 1, "a:", not_opened, ""},
      {plan, 1, " ", not_opened, ""},
      {plan, 1, "1230", "12:30", "12:30|31-12-1999|" + on},
      {plan, 1, "123045", "12:30", "12:30|31-12-1999|" + on},
      {plan, 1, "12\b", "12", ""},  // ":" is put in first
      {plan, 1, "1x:30", "1x:30", "00:00|31-12-1999|" + on},
      {plan, 1, "13.45", "13.45", "13:45|31-12-1999|" + on},
      {plan, 1, "2400", "24:00", "00:00|31-12-1999|" + on},
      {plan, 1, "9:05", "9:05", "09:05|31-12-1999|" + on},
      {plan, 1, ".1", ".1", ""},
      {plan, 1, "\b", "", ""},
      {plan, 2, "x", not_opened, ""},
      {plan, 2, "241220269", "24-12-2026", "07:30|24-12-2026|" + off},
      {plan, 2, "240226", "24-02-26", "07:30|24-02-2026|" + off},
      {plan, 2, "31022026", "31-02-2026", "07:30|00-00-0000|" + off},
      {plan, 2, "1-2-26", "1-2-26", "07:30|01-02-2026|" + off},
      {plan, 2, "1202", "12-02", "07:30|31-12-1999|" + off},
      {plan, 2, "\b", "", "07:30|31-12-1999|" + off},
      {plan, 3, "1", not_opened, ""},
      {plan, 3, " ", not_opened, "07:30|00-00-0000|" + off},
      {plan, 9, " ", not_opened, "07:30|00-00-0000|On|Off|Off|Off|Off|Off|On|1|On"},
      {plan, 9, "  ", not_opened, "07:30|00-00-0000|" + on},
      {plan, 10, "x", not_opened, ""},
      {plan, 10, "23", "2", "07:30|31-12-1999|On|Off|Off|Off|Off|Off|Off|2|On"},
      {plan, 10, "1\b2x", "2", "07:30|31-12-1999|On|Off|Off|Off|Off|Off|Off|2|On"},
      {plan, 10, "3", "3", ""},  // there are three pages
      {plan, 10, ".", "1", ""},
      {plan, 10, "\b", "", ""},
      {plan, 11, " ", not_opened, "07:30|31-12-1999|On|Off|Off|Off|Off|Off|Off|1|Off"},

      {rt, 1, "255", "255", "255|OLD"},
      {rt, 1, "256", "256", ""},
      {rt, 1, "-1", "-1", ""},
      {rt, 1, "1,5", "1,5", ""},
      {rt, 2, text64 + "SS", text64, "12|" + text64, 2},

      {pin, 1, "314", "31", "31|10:20|Information|FA94|No", 1},
      {pin, 1, "32", "32", "", 1},
      {pin, 1, "x", "x", "", 1},
      {pin, 1, "\b", "", "", 1},
      {pin, 1, "0", "0", ""},
      {pin, 1, "-1", "-1", ""},
      {pin, 2, "9.05", "9:05", "5|09:05|Information|2A45|No"},
      {pin, 2, "12:345", "12:34", "5|12:34|Information|2B22|No", 1},
      {pin, 2, "24:00", "24:00", "", 1},
      {pin, 4, "1", not_opened, ""},
      {pin, 5, "1", not_opened, ""}};
  for (const Case& one : cases) {
    OpenLists();
    Grid& grid = one.grid(*form);
    SCOPED_TRACE(grid.Name() + " " + std::to_string(one.column) + " " + one.keys);
    const std::string before = Row(grid, 1);
    dialogs.beeps = 0;
    Strike(grid, 1, one.column, one.keys);
    EXPECT_EQ(grid.Opened() ? grid.Editor().Text() : not_opened, one.typed);
    grid.Enter();
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(Row(grid, 1), one.left.empty() ? before : one.left);
    EXPECT_EQ(dialogs.beeps, one.beeps);
    form->psn.DBGrid1.Refresh();
    EXPECT_EQ(Row(grid, 1), one.left.empty() ? before : one.left);
  }
}

TEST_F(TypingRulesTest, RowsThatAreNotWhole) {
  OpenLists();
  // A new item with a time alone goes back in silence; with a day too it is taken, and its type is
  // not touched by either.
  Grid& pin = form->pin.DBGrid4;
  Strike(pin, 2, 2, "1345");
  Strike(pin, 2, 2, "\b\b\b\b13:45");
  pin.Enter();
  EXPECT_EQ(Row(pin, 2), "0|00:00|No program type or undefined|0000|No");
  EXPECT_EQ(dialogs.beeps, 0);
  Strike(pin, 2, 2, "\b");
  pin.Editor().Paste("13.45");
  Strike(pin, 2, 1, "15");
  EXPECT_EQ(form->pin.PinSelectedLabel.Caption(), "PIN 02, not taken yet");
  pin.Enter();
  EXPECT_EQ(Row(pin, 2), "15|13:45|No program type or undefined|7B6D|No");

  Grid& plan = form->plan.PsnPlanDBGrid;
  Strike(plan, 1, 1, "0800");
  plan.PutEdit(0, "");
  EXPECT_FALSE(plan.MoveTo(2, 1));
  EXPECT_EQ(Boxes(), std::vector<std::string>{"Immettere un valore nella seconda colonna"});
  EXPECT_EQ(psnPageData->Time(1), "07:30");
  plan.DropEdit(0);
  // What is being typed is kept when the screen closes.
  Strike(form->rt.DBGrid3, 1, 2, "KEPT");
  EXPECT_EQ(form->rt.RtSelectedLabel.Caption(), "RT 01, not taken yet");
  form->window.Close();
  EXPECT_EQ(psnPageData->Time(1), "08:00");
  EXPECT_EQ(rtData->Data(1), In(64, "KEPT"));
}

TEST_F(TypingRulesTest, OnAPageABadTimeIsThatOfThePlainList) {
  OpenLists("[PSN Pages]\nPsn00.01=05;On;A;\nPsn02.01=44;On;B;\n");
  Step(Psn().PageNumberScroll, -1);
  Strike(Psn().DBGrid1, 1, 1, "\b");
  EXPECT_EQ(Psn().PsnSelectedLabel.Caption(), "PSN 01, not taken yet");
  Psn().DBGrid1.Enter();
  EXPECT_EQ(Row(Psn().DBGrid1, 1), "5|B|ON");
  EXPECT_EQ(psnPageData->RotationTime(2, 1), 5);
}

TEST_F(TypingRulesTest, ScrollBoxes) {
  struct Case {
    TextBox PsnTab::*box;
    std::string keys;
    std::string typed, left;  // the box before and after it is left
    std::string kept;         // from, to, time
    std::string text;         // what is left of the scrolling text
  };
  const std::string kept = "10 49 3";
  const std::string text(30, 'S');
  const Case cases[] = {{&PsnTab::Text12, "\b", "", "10", kept, text},
                        {&PsnTab::Text12, "x", "x", "10", kept, text},
                        {&PsnTab::Text12, "-5", "-5", "10", kept, text},
                        {&PsnTab::Text12, "123", "12", "12", "12 49 3", text},
                        {&PsnTab::Text12, "40", "40", "40", "40 49 3", text.substr(0, 10)},
                        {&PsnTab::Text12, "50", "49", "49", "49 49 3", "S"},
                        {&PsnTab::Text13, "\b", "49", "49", kept, text},
                        {&PsnTab::Text13, "x", "49", "49", kept, text},
                        {&PsnTab::Text13, "20", "20", "20", "10 20 3", ""},  // by way of 2
                        {&PsnTab::Text13, "99", "49", "49", kept, ""},
                        {&PsnTab::Text14, "\b", "3", "3", kept, text},
                        {&PsnTab::Text14, "-1", "1", "1", "10 49 1", text},
                        {&PsnTab::Text14, "0", "3", "3", kept, text},
                        {&PsnTab::Text14, "123", "12", "12", "10 49 12", text},
                        {&PsnTab::Text11, std::string(42, 'L'), std::string(40, 'L'),
                         std::string(40, 'L'), kept, std::string(40, 'L')}};
  sizes.psn = 50;
  for (const bool pages : {false, true}) {
    for (const Case& one : cases) {
      OpenLists(pages ? "" : kNoPages);
      EXPECT_EQ(Psn().Text11.Text(), "");
      form->window.MoveFocus(&Psn().Text11);
      Psn().Text11.Type(text);
      TextBox& box = Psn().*one.box;
      SCOPED_TRACE(box.Name() + " " + one.keys);
      form->window.MoveFocus(&box);
      box.SelectAll();
      box.Type(one.keys);
      EXPECT_EQ(box.Text(), one.typed);
      form->window.MoveFocus(&Psn().DBGrid1);
      EXPECT_EQ(box.Text(), one.left);
      const auto told = [](const auto& store) {
        return std::to_string(store.ScrollFrom()) + " " + std::to_string(store.ScrollTo()) + " " +
               std::to_string(store.ScrollTime());
      };
      EXPECT_EQ(pages ? told(*psnPageData) : told(*psnData), one.kept);
      EXPECT_EQ(pages ? told(*psnData) : told(*psnPageData), kept);  // the other store
      EXPECT_EQ(Psn().Text11.Text(), one.text);
    }
  }
  // Showing stores nothing: the Coder may have fewer rows for a while.
  sizes.psn = 4;
  OpenLists(std::string(kNoPages) + "[PSN Pages]\nScrollFrom=2\nScrollTo=30\n");
  EXPECT_EQ(Psn().Text12.Text() + " " + Psn().Text13.Text(), "2 30");
  EXPECT_EQ(psnData->ScrollTo(), 30);
  Psn().Text11.Type("AB");
  Psn().Command24.Press();  // as far as the list goes
  EXPECT_EQ(Row(Psn().DBGrid1, 3), "3|      AB|ON");
}

TEST_F(TypingRulesTest, ScrollingTextFillsItsRows) {
  sizes.psn = 30;
  const auto fill = [this](int from, int to, const std::string& text) {
    OpenLists(std::string(kNoPages) +
              "[PSN Pages]\nPsn00.09=07;On;BEFORE;\nPsn00.15=07;On;BEHIND;\n" +
              "Psn00.14=07;On;LAST;\nScrollTime=6\nScrollFrom=" + std::to_string(from) +
              "\nScrollTo=" + std::to_string(to) + "\n");
    Psn().DBGrid1.SetView(0, 5);
    form->window.MoveFocus(&Psn().Text11);
    Psn().Text11.Type(text);
    Strike(Psn().DBGrid1, 20, 2, "OPEN");
    Psn().Command24.Press();
    EXPECT_EQ(psnData->Data(20), "OPEN    ");
    EXPECT_EQ(Psn().DBGrid1.FirstRow(), from);
    std::string rows;
    for (int row = 9; row < 16; ++row) {
      rows += psnData->Data(static_cast<std::int16_t>(row)) + Row(Psn().DBGrid1, row)[0] +
              (psnData->Active(static_cast<std::int16_t>(row)) ? "*\n" : "\n");
    }
    return rows;
  };
  EXPECT_EQ(fill(10, 14, "ABC"),
            "BEFORE  7*\n       A6*\n      AB6*\n     ABC6*\n        6\n        6\nBEHIND  7*\n");
  EXPECT_EQ(fill(12, 13, "AB"),
            "BEFORE  7*\n        0\n        0\n       A6*\n      AB6*\nLAST    7*\nBEHIND  7*\n");
  EXPECT_EQ(fill(14, 14, ""),
            "BEFORE  7*\n        0\n        0\n        0\n        0\n        6\nBEHIND  7*\n");
  EXPECT_EQ(fill(14, 10, "AB").substr(0, 11), "BEFORE  7*\n");
  EXPECT_EQ(psnData->Data(14), "LAST    ");
  fill(0, 9, "0123456789");
  EXPECT_EQ(psnData->Data(8) + psnData->Data(9), "1234567823456789");
}

TEST_F(TypingRulesTest, PagesAreTurnedWithWhatWasTypedOnThem) {
  sizes.page = 10;
  OpenLists("");
  const auto type_page = [this](int key) {
    form->window.MoveFocus(&Psn().PageNumberText);
    Psn().PageNumberText.TypeKey(key);
  };
  const std::pair<int, int> steps[] = {{+1, 1}, {-1, 0}, {-1, 9}, {-1, 8}, {+2, 0}};
  for (const auto& [step, page] : steps) {
    Step(Psn().PageNumberScroll, step);
    EXPECT_EQ(psnPageData->CurrentPage(), page);
    EXPECT_EQ(Psn().PageNumberText.Text(), std::to_string(page));
  }
  const std::pair<int, int> keys[] = {{'7', 7}, {'x', 7}, {kKeyBackspace, 7}, {'9', 9}, {':', 9}};
  for (const auto& [key, page] : keys) {
    const std::uint8_t before = psnPageData->CurrentPage();
    Strike(Psn().DBGrid1, 1, 2, "OF " + std::to_string(before));
    type_page(key);
    EXPECT_EQ(psnPageData->CurrentPage(), page);
    EXPECT_EQ(Psn().PageNumberText.Text(), std::to_string(page));
    Psn().DBGrid1.Enter();
    EXPECT_EQ(psnPageData->Data(before, 1), "OF " + std::to_string(before) + "    ");
  }
  for (const char* typed : {"", "3"}) Psn().PageNumberText.Edit(typed, 0);  // undo, cut
  EXPECT_EQ(Psn().PageNumberText.Text(), "9");
  Strike(Psn().DBGrid1, 2, 2, "X");
  Step(Psn().PageNumberScroll, +1);
  EXPECT_EQ(psnPageData->Data(9, 2) + psnPageData->Data(0, 2), "X               ");
  Step(Psn().PageNumberScroll, +3);
  form->window.Close();
  form->Load();
  EXPECT_EQ(Psn().PageNumberText.Text(), "3");
  OpenLists("");
  EXPECT_EQ(Psn().PageNumberText.Text(), "0");
  sizes.page = 5;
  OpenLists("");
  type_page('5');
  EXPECT_EQ(psnPageData->CurrentPage(), 0);
}

TEST_F(TypingRulesTest, TypesAreChosenFromTheListOverTheirCell) {
  OpenLists();
  PinTab& tab = form->pin;
  ListBox& list = tab.Combo1;
  EXPECT_FALSE(list.Visible());
  EXPECT_EQ(list.Entry(12) + list.Entry(18), "M.O.R.MusicChildren 's programs");
  form->window.MoveFocus(&tab.DBGrid4);
  const std::function<void()> hidings[] = {[&] { tab.DBGrid4.MoveTo(1, 2); },
                                           [&] { tab.DBGrid4.SetView(1, 2); },
                                           [&] { form->window.MoveFocus(&tab.Command7); },
                                           [&] {
                                             list.SetFocus();
                                             form->window.MoveFocus(&tab.Command7);
                                           },
                                           [&] { form->SSTab1.Choose(PsnRtPinAfForm::kRt); },
                                           [&] { form->window.Close(); }};
  for (const auto& hide : hidings) {
    if (!form->window.Visible()) form->Load();
    tab.DBGrid4.SetView(0, 4);
    form->window.MoveFocus(&tab.DBGrid4);
    tab.DBGrid4.MoveTo(1, 2);
    tab.DBGrid4.MoveTo(1, PinTab::kTypeColumn);
    EXPECT_TRUE(list.Visible());
    EXPECT_EQ(list.Index(), 3);
    EXPECT_FALSE(tab.DBGrid4.HasEdits());
    hide();
    EXPECT_FALSE(list.Visible());
    EXPECT_EQ(pinData->ProgramType(1), 3);
  }
  form->Load();
  tab.DBGrid4.Press(1, PinTab::kTypeColumn);
  tab.DBGrid4.Press(1, PinTab::kTypeColumn);  // once more, or a key: into the list
  EXPECT_TRUE(list.HasFocus());
  list.Choose(31);
  EXPECT_FALSE(list.Visible());
  EXPECT_TRUE(tab.DBGrid4.HasFocus());
  EXPECT_EQ(tab.DBGrid4.Shown(1, PinTab::kTypeColumn), "Alarm");
  // A type beyond the table is shown as none, and stays until one is chosen.
  pinData->SetProgramType(2, 77);
  tab.DBGrid4.Enter();
  EXPECT_EQ(pinData->ProgramType(1), 31);
  EXPECT_EQ(list.Index(), ListBox::kNone);
  tab.DBGrid4.Enter();
  EXPECT_EQ(pinData->ProgramType(2), 77);
}

TEST_F(TypingRulesTest, NamesOfTypes) {
  OpenLists();
  PtynTab& tab = form->ptyn;
  TextBox& box = tab.PtynText;
  EXPECT_EQ(std::to_string(tab.PtyCombo.Index()) + box.Text(), "0--------");
  EXPECT_EQ(tab.PtyCombo.Entry(9) + tab.PtyCombo.Entry(31), "9    Varied31  Alarm");
  form->window.MoveFocus(&box);
  box.SelectAll();
  box.Type("JAZZ");
  EXPECT_EQ(ptynData->Ptyn(0), "--------");
  form->window.MoveFocus(&tab.PtyCombo);
  tab.PtyCombo.Choose(24);
  EXPECT_EQ(ptynData->Ptyn(0) + ptynData->Ptyn(24) + box.Text(), "JAZZ    ----------------");
  form->window.MoveFocus(&box);
  box.SelectAll();
  box.Paste("123456789012");
  EXPECT_EQ(box.Text() + ptynData->Ptyn(24), "1234567812345678");
  box.Select(0, 0);
  box.Type("AB");
  EXPECT_EQ(box.Text() + ptynData->Ptyn(24), "AB123456AB123456");
  box.Select(8, 0);
  box.Type("\b\b");
  form->window.Close();
  EXPECT_EQ(ptynData->Ptyn(24), "AB1234  ");
  ptynData->SetPtyn("READ", 24);
  form->Load();
  EXPECT_EQ(tab.PtyCombo.Index(), 24);
  EXPECT_EQ(box.Text(), "READ    ");
  EXPECT_THROW(ptynData->SetPtyn("", 32), std::out_of_range);
}

TEST_F(TypingRulesTest, TabsFollowTheCodersModel) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "11"}, {"PTYN Enable=Off\n", "10"}, {"PSN Plan Enable=Off\n", "01"}};
  for (const auto& [keys, shown] : cases) {
    OpenLists("[RDS Setup]\n" + keys);
    const auto visible = [this](int tab) { return form->SSTab1.TabVisible(tab) ? "1" : "0"; };
    EXPECT_EQ(std::string(visible(PsnRtPinAfForm::kPlan)) + visible(PsnRtPinAfForm::kPtyn), shown);
    EXPECT_EQ(form->SSTab1.Tab(), PsnRtPinAfForm::kPsn);
    form->SSTab1.SetTab(PsnRtPinAfForm::kRt);
  }
}

}  // namespace
}  // namespace corvalis::test
