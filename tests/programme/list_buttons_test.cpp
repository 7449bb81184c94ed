// The five buttons of each list of the programme, against the Coder in memory.

#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "coder/frames.h"
#include "programme/programme_screen.h"

namespace corvalis::test {
namespace {

enum { kReadOne, kReadAll, kSendOne, kSendAll, kBurst };

// One list, with an item 1 that is edited before a button is pressed.
struct List {
  const char *name, *grid, *buttons;
  const char* keys;  // of the file
  std::uint8_t code;
  int number;                         // of the item 1, in the Coder
  std::string request, kept, edited;  // bodies: as in the file, and with the edit
  int column;                         // of the edit
  std::string typed;                  // the edit
  std::string pauses;                 // tenths of seconds after each: read all, send all, burst
  int extra_passes;
  std::string commits;  // send one, send all, burst
  bool reads_to_column_0, keeps_row_0;
};

constexpr const char* kPsn = "Command19 Command20 Command17 Command16 Command18";
const List kLists[] = {
    {"PSN", "DBGrid1", kPsn,
     "[RDS Setup]\nPSN Pages Enable=Off\n[PSN Pages]\nPsn00.01=05;On;OLD;\n", 0x03, 1, "",
     "05OLD     ", "05NEW     ", 2, "NEW", "000", 0, "110", true, true},
    {"page", "DBGrid1", kPsn, "[PSN Pages]\nPsn01.01=05;On;OLD;\n", 0x1C, 0x101, "1", "105OLD     ",
     "105NEW     ", 2, "NEW", "000", 0, "110", true, true},
    {"plan", "PsnPlanDBGrid",
     "ReadPlanCommand ReadAllPlanCommand SendPlanCommand SendAllPlanCommand SendBurstPlanCommand",
     "[PSN Plan]\nPlan001=07:30;31-12-1999;Off;Off;Off;Off;Off;Off;Off;2;On;\n", 0x1F, 1, "",
     "10730311299000000002", "10730311299000000001", 10, "1", "022", 1, "111", true, false},
    {"RT", "DBGrid3", "Command9 Command22 Command14 Command21 Command10", "[RT]\nRt01=12;OLD;\n",
     0x07, 1, "", "12" + In(64, "OLD"), "12" + In(64, "NEW"), 2, "NEW", "220", 0, "100", false,
     true},
    {"PIN", "DBGrid4", "Command6 Command23 Command8 Command15 Command7",
     "[PIN]\nPin001=05;10:20;03;Off\n", 0x06, 1, "0", "00032A94", "00037A94", 1, "15", "000", 0,
     "100", true, true},
    // A box, which is left when a button is pressed.
    {"PTYN", "",
     "ReadPtynCommand ReadPtynAllCommand SendPtynCommand SendPtynAllCommand SendPtynBurstCommand",
     "[PTYN]\nPtyN01=OLD\n", 0x17, 1, "", "OLD     ", "NEW     ", 0, "NEW", "022", 1, "111", true,
     true}};

class ListButtonsTest : public ProgrammeTest {
 protected:
  void OpenList(const List& opened, const char* link) {
    list = &opened;
    OpenScreen(Sized(std::string(link) + "Burst=3\n" + list->keys));
    grid = dynamic_cast<Grid*>(form->window.Find(list->grid));
    std::istringstream names(list->buttons);
    std::string name;
    for (Button*& button : buttons) {
      names >> name;
      button = dynamic_cast<Button*>(form->window.Find(name));
    }
    items = grid == nullptr ? 32 : 4;
    if (list->code == 0x1C) Step(form->psn.PageNumberScroll, +1);
    if (grid != nullptr) {
      grid->SetView(0, 4);
      grid->MoveTo(1, 0);
    }
    AddressSent = true;
    LinkError = 5;  // of an earlier run
    time_of_press = 0;
  }
  void Edit() {
    if (grid != nullptr) return Strike(*grid, 1, list->column, list->typed);
    TextBox& box = form->ptyn.PtynText;
    form->ptyn.PtyCombo.Choose(1);
    form->window.MoveFocus(&box);
    box.SelectAll();
    box.Type(list->typed);
  }
  void Press(int button) {
    const double before = time.Elapsed();
    buttons.at(static_cast<std::size_t>(button))->Press();
    time_of_press = time.Elapsed() - before;
    EXPECT_TRUE(form->window.Enabled());
  }
  // Seconds after each item.
  double Pause(int button) const {
    const int place = button == kReadAll ? 0 : button - kSendOne;
    return (list->pauses.at(static_cast<std::size_t>(place)) - '0') / 10.0;
  }
  std::string Shown() {
    return grid == nullptr ? form->ptyn.PtynText.Text() : grid->Shown(1, list->column);
  }
  bool Edited() { return grid != nullptr && grid->HasEdits(); }
  Bytes ItemFrame(const std::string& body) const { return coder::Frame(list->code, 1, body); }
  // The items of the frames that have left since the last call.
  std::vector<int> Items() {
    std::vector<int> sent;
    for (const Bytes& frame : Written()) sent.push_back(frame.at(2));
    return sent;
  }
  static std::vector<int> FirstItems(int count, int passes = 1) {
    std::vector<int> all(static_cast<std::size_t>(count * passes));
    for (int i = 0; int& item : all) item = i++ % count;
    return all;
  }
  void CoderHolds(const std::string& body) const {
    ASSERT_TRUE(the_coder->SetItem(list->code, list->number, coder::Text(body)));
  }
  void Refuse(int item) {
    port.answer = [this, item](const Bytes& f) {
      return f[2] == item ? coder::Refusal(2) : the_coder->Take(f);
    };
  }

  const List* list = nullptr;
  Grid* grid = nullptr;
  std::array<Button*, 5> buttons{};
  int items = 0;
  double time_of_press = 0;
};

TEST_F(ListButtonsTest, Reads) {
  for (const List& one : kLists) {
    SCOPED_TRACE(one.name);
    OpenList(one, kLocal);
    EXPECT_FALSE(buttons[kBurst]->Visible());
    Edit();
    CoderHolds(list->kept);  // newer than what is being typed
    Press(kReadOne);
    EXPECT_EQ(Written(), std::vector<Bytes>{ItemFrame(list->request)});
    EXPECT_FALSE(Edited());
    const std::string old = Shown();
    EXPECT_NE(old.substr(0, list->typed.size()), list->typed);
    if (grid != nullptr) {
      EXPECT_EQ(grid->Row(), 1);
      EXPECT_EQ(grid->Column(), list->reads_to_column_0 ? 0 : list->column);
    }

    CoderHolds(list->edited);
    Press(kReadAll);
    EXPECT_EQ(Items(), FirstItems(items));
    EXPECT_NEAR(time_of_press, items * Pause(kReadAll), 0.01);
    EXPECT_EQ(Shown().substr(0, list->typed.size()), list->typed);

    Refuse(2);
    CoderHolds(list->kept);
    Press(kReadAll);
    EXPECT_EQ(Items(), FirstItems(3));
    EXPECT_EQ(Shown(), old);  // what was read before stays
    Edit();
    Refuse(1);  // nor does reading the rows before store an edit
    Press(kReadAll);
    EXPECT_EQ(Edited(), grid != nullptr);
    EXPECT_EQ(Boxes().size(), 2U);
    port.answer = nullptr;
  }
}

TEST_F(ListButtonsTest, ReadingAllKeepsThePlace) {
  for (const List& one : kLists) {
    if (one.code == 0x17) continue;
    SCOPED_TRACE(one.name);
    for (const auto& [row, first_row] : {std::pair{0, 0}, {2, 1}, {0, 2}, {3, 0}}) {
      OpenList(one, kLocal);
      grid->MoveTo(row, list->column);
      grid->SetView(first_row, 2);  // the wheel
      Press(kReadAll);
      // The rows in view are followed by eye; the plan does not go back to its row 0.
      EXPECT_EQ(grid->Row(), row == 0 && !list->keeps_row_0 ? first_row + 1 : row);
      EXPECT_EQ(grid->FirstRow(), first_row) << row;
      EXPECT_EQ(grid->Column(), list->reads_to_column_0 ? 0 : list->column);
    }
  }
}

TEST_F(ListButtonsTest, SendsStoreTheRowBeingEditedWhereTheListSaysSo) {
  for (const List& one : kLists) {
    for (const int button : {kSendOne, kSendAll, kBurst}) {
      SCOPED_TRACE(std::string(one.name) + " " + std::to_string(button));
      OpenList(one, kSatellite);
      EXPECT_FALSE(buttons[kReadOne]->Visible() || buttons[kReadAll]->Visible());
      Edit();
      AddressSent = false;
      ExpectAddressRule({buttons.at(static_cast<std::size_t>(button))});
      EXPECT_EQ(Edited(), grid != nullptr);  // the rule comes first
      Press(button);
      const bool stored = list->commits.at(static_cast<std::size_t>(button - kSendOne)) == '1';
      EXPECT_EQ(Edited(), !stored);
      const int passes = button == kBurst ? 3 + list->extra_passes : 1;
      const Bytes expected = ItemFrame(stored ? list->edited : list->kept);
      EXPECT_EQ(port.written.at(button == kSendOne ? 0 : 1), expected);
      EXPECT_EQ(Items(), button == kSendOne ? std::vector<int>{1} : FirstItems(items, passes));
      EXPECT_NEAR(time_of_press, button == kSendOne ? 0 : items * passes * Pause(button), 0.01);
      EXPECT_EQ(Boxes(), no_boxes);
      EXPECT_TRUE(grid == nullptr || (grid->Row() == 1 && grid->FirstRow() == 0));
    }
  }
}

TEST_F(ListButtonsTest, RunsEndAtARefusalAndAtTheOperatorsAbort) {
  for (const List& one : kLists) {
    SCOPED_TRACE(one.name);
    OpenList(one, kLocal);
    Refuse(2);
    Press(kSendAll);
    EXPECT_EQ(Items(), FirstItems(3));
    EXPECT_EQ(Boxes().size(), 1U);
    port.answer = nullptr;

    OpenList(one, kSatellite);
    const auto frames = static_cast<std::size_t>(items) + 1;  // in the second pass
    port.Wrote = [&] { EscPressed = port.written.size() == frames; };
    Press(kBurst);
    EXPECT_EQ(Items().size(), frames);
    EXPECT_EQ(Boxes(), no_boxes);
    port.Wrote = nullptr;
  }
}

// The first row and the last one, and a list of one row.
TEST_F(ListButtonsTest, SendOneStoresAnyRow) {
  for (const int rows : {1, 4}) {
    sizes = {.psn = rows, .page = rows, .plan = rows, .rt = rows, .pin = rows};
    for (const List& one : kLists) {
      if (one.code == 0x17 || (rows == 1 && one.code == 0x1C)) continue;
      SCOPED_TRACE(one.name);
      OpenList(one, kLocal);
      Strike(*grid, rows - 1, 1, one.code == 0x1F ? "0145" : "17");
      Press(kSendOne);
      EXPECT_FALSE(Edited());
      EXPECT_EQ(Items(), std::vector<int>{rows - 1});
    }
  }
}

TEST_F(ListButtonsTest, PageOnTheAir) {
  sizes.page = 10;
  PsnTab* tab = nullptr;
  const auto open = [&](const std::string& file) {
    OpenScreen(Sized(file));
    tab = &form->psn;
  };
  for (const bool pages : {false, true}) {
    open(std::string(kLocal) + (pages ? "" : kNoPages));
    EXPECT_EQ(tab->ReadPsnActiveButton.Visible() && tab->SendPsnActiveButton.Visible(), pages);
    EXPECT_EQ(tab->PageNumberText.Visible() && tab->PageNumberScroll.Visible(), pages);
    EXPECT_FALSE(tab->SendPsnActiveBurstButton.Visible());
  }
  const std::pair<const char*, int> answers[] = {{"\x3C", 2}, {"3", 3}, {"!", 5}, {"\xFF", 7}};
  for (const auto& [answer, page] : answers) {
    ASSERT_TRUE(the_coder->SetItem(0x1D, 0, coder::Text(answer)));
    Strike(tab->DBGrid1, 1, 2, "KEPT");
    const std::uint8_t before = psnPageData->CurrentPage();
    tab->ReadPsnActiveButton.Press();
    EXPECT_EQ(psnPageData->CurrentPage(), page);
    EXPECT_EQ(tab->PageNumberText.Text(), std::to_string(page));
    EXPECT_EQ(psnPageData->Data(before, 1), "KEPT    ");
    EXPECT_EQ(psnPageData->Data(static_cast<std::uint8_t>(page), 1), "        ");
  }
  port.answer = [](const Bytes&) { return coder::Refusal(7); };
  tab->ReadPsnActiveButton.Press();
  EXPECT_EQ(tab->PageNumberText.Text(), "7");
  EXPECT_EQ(Boxes().size(), 1U);
  port.answer = nullptr;

  open(kSatellite);
  EXPECT_FALSE(tab->ReadPsnActiveButton.Visible());
  Step(tab->PageNumberScroll, -1);
  AddressSent = false;
  ExpectAddressRule({&tab->SendPsnActiveButton, &tab->SendPsnActiveBurstButton});
  tab->SendPsnActiveButton.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>{coder::Frame(0x1D, 0, "9")});
  tab->SendPsnActiveBurstButton.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>(3, coder::Frame(0x1D, 0, "9")));
}

TEST_F(ListButtonsTest, WhatTravelsOfARow) {
  // A row that is not active goes out with the time 0, which is what comes back.
  OpenList(kLists[0], kLocal);
  grid->MoveTo(1, 3);
  grid->TypeKey(' ');
  Press(kSendOne);
  EXPECT_EQ(Written(), std::vector<Bytes>{ItemFrame("00OLD     ")});
  EXPECT_EQ(grid->Shown(1, 1) + grid->Shown(1, 3), "5Off");
  Press(kReadOne);
  EXPECT_EQ(grid->Shown(1, 1) + grid->Shown(1, 3), "0Off");
  // The time of the page on the screen, whatever page is sent.
  OpenList(kLists[1], kLocal);
  Written();
  psnPageData->SetActive(2, 1, true);
  psnPageData->SetRotationTime(2, 1, 77);
  psnPageData->SetOneRds(2, 1);
  EXPECT_EQ(Written(), std::vector<Bytes>{ItemFrame("205        ")});
  // Bytes that no screen can show go out as they came.
  OpenList(kLists[3], kLocal);
  const std::string body = "12" + In(64, "\x81\x8D\x9D\x01\n;");
  CoderHolds(body);
  Press(kReadOne);
  Written();
  Press(kSendOne);
  EXPECT_EQ(Written(), std::vector<Bytes>{ItemFrame(body)});
  // A name that could not be read is blank.
  OpenList(kLists[5], kLocal);
  Edit();
  port.answer = [](const Bytes&) { return coder::Refusal(7); };
  Press(kReadOne);
  EXPECT_EQ(Shown(), "        ");
  port.answer = nullptr;
}

TEST_F(ListButtonsTest, ProgrammeItemsAsTheyTravel) {
  sizes.pin = 255;
  OpenList(kLists[4], kLocal);
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"15;13:45;03;On", "01037B6D", "Information"},
      {"05;10:20;20;Off", "00012A94", "Religion"},  // its first digit
      {"40;10:20;31;Off", "00014294", "Alarm"},     // a day that no month has
      {"-1;00:00;-1;Off", "00FFF800", ""},
      {"00;00:00;300;Off", "00120000", ""}};
  for (const auto& [value, body, type] : cases) {
    WriteFile(ProgramFile(), Sized(std::string(kLocal) + "[PIN]\nPin001=" + value + "\n"));
    pinData->GetIni();
    Written();
    pinData->SetOneRds(1);
    ASSERT_EQ(port.written.size(), 1U);
    EXPECT_EQ(Written()[0], ItemFrame(body)) << value;
    EXPECT_EQ(grid->Shown(1, 3), type);
  }
  // Hours and minutes that are none: no day and no time; the rest is kept.
  CoderHolds("01037FFF");
  Press(kReadOne);
  std::string shown;
  for (int column = 1; column < 6; ++column) shown += grid->Shown(1, column) + "|";
  EXPECT_EQ(shown, "0|00:00|Information|0000|Yes|");
}

}  // namespace
}  // namespace corvalis::test
