// A grid without pixels: what its keys and presses do, and when its rules run.

#include "screen/grid.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "screen/keys.h"
#include "support/grid_form.h"

namespace corvalis::test {
namespace {

class GridTest : public testing::Test {
 protected:
  GridTest() { form.window.Show(); }

  GridForm form{20};
  Grid& grid = form.grid;
};

constexpr const char* kBlank = "        ";

TEST_F(GridTest, OperationsLeadThere) {
  struct Step {
    std::function<void()> act;
    int row;
    int column;
    bool opened;
    std::string text;  // of the open cell, else what the current one shows
  };
  const std::vector<Step> steps = {
      {[&] { grid.Type("x"); }, 0, 0, false, "PSN 00"},  // only shown
      {[&] { grid.OpenCell(); }, 0, 0, false, "PSN 00"},
      {[&] { grid.Paste("x"); }, 0, 0, false, "PSN 00"},
      {[&] { EXPECT_FALSE(grid.MoveTo(0, 99)); }, 0, 0, false, "PSN 00"},
      {[&] { EXPECT_FALSE(grid.MoveTo(20, 0)); }, 0, 0, false, "PSN 00"},
      {[&] { EXPECT_FALSE(grid.MoveTo(-1, 0)); }, 0, 0, false, "PSN 00"},
      {[&] { EXPECT_TRUE(grid.Tab(true)); }, 0, 1, false, "0"},
      {[&] { grid.Type("123"); }, 0, 1, true, "12"},
      {[&] { grid.Editor().Select(1, 0), grid.Type("9"); }, 0, 1, true, "12"},  // it is full
      {[&] { grid.Enter(); }, 1, 1, false, "0"},
      {[&] { EXPECT_TRUE(grid.Tab(true)); }, 1, 2, false, kBlank},
      {[&] { grid.Paste("123456789"); }, 1, 2, true, "12345678"},
      {[&] { EXPECT_TRUE(grid.Escape()); }, 1, 2, false, kBlank},
      {[&] { EXPECT_FALSE(grid.Escape()); }, 1, 2, false, kBlank},
      {[&] { grid.TypeKey(kKeyBackspace); }, 1, 2, true, ""},
      {[&] { grid.Type("stay"); }, 1, 2, true, "stay"},
      {[&] { EXPECT_FALSE(grid.MoveTo(5, 1)); }, 1, 2, true, "stay"},
      {[&] { EXPECT_TRUE(grid.Tab(true)); }, 1, 2, true, "stay"},  // not out of the grid either
      {[&] { EXPECT_FALSE(grid.Commit()); }, 1, 2, true, "stay"},
      {[&] { grid.Press(1, 3); }, 1, 2, true, "stay"},
      {[&] { grid.TypeKey(kKeyBackspace); }, 1, 2, true, "sta"},
      {[&] { grid.Press(1, 3); }, 1, 3, false, "ON"},
      {[&] { grid.Press(1, 3); }, 1, 3, false, "Off"},
      {[&] { grid.Type(" x"); }, 1, 3, false, "ON"},
      {[&] { EXPECT_TRUE(grid.Tab(true)); }, 2, 1, false, "0"},
      {[&] { EXPECT_TRUE(grid.Tab(false)); }, 1, 3, false, "ON"},
      {[&] { grid.Press(4, 2); }, 4, 2, false, kBlank},
      {[&] { grid.Press(4, 2); }, 4, 2, true, kBlank},
      {[&] { grid.Press(19, 1); }, 19, 1, false, "0"},
      {[&] { grid.Clear(); }, 19, 1, true, ""},
      {[&] { grid.Type("7"), grid.Enter(); }, 19, 1, false, "7"},  // the last row
      {[&] { grid.Tab(true), grid.Tab(true); }, 19, 3, false, "Off"},
      {[&] { EXPECT_FALSE(grid.Tab(true)); }, 19, 3, false, "Off"},
  };
  for (std::size_t i = 0; i < steps.size(); ++i) {
    steps[i].act();
    EXPECT_EQ(grid.Row(), steps[i].row) << "step " << i;
    EXPECT_EQ(grid.Column(), steps[i].column) << "step " << i;
    EXPECT_EQ(grid.Opened(), steps[i].opened) << "step " << i;
    const std::string shown = grid.Shown(grid.Row(), grid.Column());
    EXPECT_EQ(grid.Opened() ? grid.Editor().Text() : shown, steps[i].text) << "step " << i;
  }
  EXPECT_EQ(form.ItemAt(0).time, "12");
  EXPECT_EQ(form.ItemAt(1).text, "sta     ");
  EXPECT_TRUE(form.ItemAt(1).active);
  EXPECT_EQ(form.ItemAt(19).time, "7");
}

TEST_F(GridTest, ACommitStoresWithoutMoving) {
  grid.MoveTo(3, 3);
  grid.TypeKey(' ');
  grid.MoveTo(3, 1);
  grid.Type("x");  // will be refused, which must not hold up the row
  form.moved = 0;
  EXPECT_TRUE(grid.Commit());
  EXPECT_EQ(form.moved, 0);
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(form.ItemAt(3).time, "0");
  EXPECT_TRUE(form.ItemAt(3).active);
  EXPECT_TRUE(grid.Commit());
  EXPECT_EQ(form.written, 1);  // nothing is written twice, nor what was not edited
}

TEST_F(GridTest, SaysWhetherItsRowHasWhatTheDataHasNot) {
  int told = 0;
  grid.Edited = [&told] { ++told; };
  const auto untaken = [&] { return std::exchange(told, 0) > 0 && grid.HasUntaken(); };
  grid.MoveTo(3, 1);
  grid.OpenCell();
  EXPECT_FALSE(untaken());  // nothing is typed yet
  grid.Type("7");
  EXPECT_TRUE(untaken());
  grid.MoveTo(3, 3);
  EXPECT_TRUE(untaken());
  grid.Commit();
  EXPECT_FALSE(grid.HasUntaken());
  EXPECT_EQ(told, 1);
  grid.TypeKey(' ');
  EXPECT_TRUE(untaken());
  grid.Escape();
  EXPECT_EQ(told, 1);
  EXPECT_FALSE(grid.HasUntaken());
}

TEST_F(GridTest, ARowsRuleSeesRepairsAndStays) {
  bool stay = true;
  std::string seen;
  grid.RowLeft = [&](int row) {
    seen = grid.Shown(row, 1) + "/" + grid.Shown(row, 2);
    grid.PutEdit(2, "repaired");
    grid.DropEdit(1);
    EXPECT_FALSE(grid.MoveTo(9, 1));  // not from within
    return !stay;
  };
  grid.MoveTo(2, 1);
  EXPECT_EQ(seen, "");  // no edit, no rule
  grid.Type("9");
  EXPECT_FALSE(grid.MoveTo(3, 1));
  EXPECT_EQ(seen, std::string("9/") + kBlank);
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(form.written, 0);
  stay = false;
  EXPECT_TRUE(grid.MoveTo(3, 1));
  EXPECT_EQ(form.ItemAt(2).time, "0");
  EXPECT_EQ(form.ItemAt(2).text, "repaired");
}

TEST_F(GridTest, WhatIsReadIsNewerThanAnEdit) {
  struct Case {
    std::function<void()> read;
    std::string shown;
  };
  for (const bool opened : {true, false}) {
    for (const Case& it :
         {Case{[&] { grid.RefreshRow(2); }, "5"}, Case{[&] { grid.Refresh(); }, "5"},
          Case{[&] { grid.RefreshRow(3); }, "9"}, Case{[&] { grid.Repaint(); }, "9"}}) {
      form.ItemAt(2).time = "0";
      grid.MoveTo(2, 1);
      grid.Type("9");
      if (!opened) grid.MoveTo(2, 2);
      form.ItemAt(2).time = "5";
      it.read();
      grid.Commit();
      EXPECT_EQ(form.ItemAt(2).time, it.shown);
    }
  }
  // From within the rule of the cell that is being left, too.
  grid.CellLeft = [&](int /*column*/, std::string& /*text*/) {
    form.ItemAt(2).time = "5";
    grid.RefreshRow(2);
    return Grid::Leave::kTake;
  };
  form.ItemAt(2).time = "0";
  grid.MoveTo(2, 1);
  grid.Type("9");
  grid.Commit();
  EXPECT_EQ(form.ItemAt(2).time, "5");
}

TEST_F(GridTest, ARowThatIsReadIsDrawnIfAnyOfItIsSeen) {
  grid.SetView(5, 5);
  std::string drawn;
  grid.Drawn = [&] { drawn += '*'; };
  for (const int row : {4, 5, 9, 10, 11}) {  // 10 is cut off at the bottom
    grid.RefreshRow(row);
    drawn += std::to_string(row) + ' ';
  }
  EXPECT_EQ(drawn, "4 *5 *9 *10 11 ");
}

TEST_F(GridTest, AnotherFileStartsAtItsFirstRow) {
  grid.SetView(5, 10);
  grid.MoveTo(8, 2);
  grid.Type("old");
  form.moved = 0;
  grid.Restart();
  EXPECT_EQ(form.moved, 1);
  EXPECT_EQ(grid.Row(), 0);
  EXPECT_EQ(grid.FirstRow(), 0);
  EXPECT_FALSE(grid.HasEdits());
  EXPECT_TRUE(grid.Commit());
  EXPECT_EQ(form.written, 0);
  grid.MoveTo(8, 2);
  form.items.resize(5);
  grid.Refresh();
  EXPECT_EQ(grid.Row(), 4);  // the last one of a list that has become shorter
  form.items.clear();
  grid.Restart();
  EXPECT_EQ(grid.Row(), Grid::kNoRow);
  grid.Type("x");
  grid.Enter();
  grid.OpenCell();
  EXPECT_FALSE(grid.Tab(true));
  EXPECT_FALSE(grid.MoveTo(0, 0));
  EXPECT_FALSE(grid.HasEdits());
}

TEST_F(GridTest, ThePlaceIsKeptAndTheCurrentRowIsSeen) {
  grid.SetView(0, 5);
  int scrolled = 0;
  grid.Scrolled = [&] { ++scrolled; };
  grid.MoveTo(9, 1);
  EXPECT_EQ(grid.FirstRow(), 5);
  EXPECT_EQ(scrolled, 1);
  grid.SetFirstRow(19);  // as far as the grid goes
  EXPECT_EQ(grid.FirstRow(), 15);
  grid.Type("1");  // comes into sight
  EXPECT_EQ(grid.FirstRow(), 9);
  grid.SetView(12, 5);
  grid.Type("2");
  EXPECT_EQ(grid.FirstRow(), 9);

  struct Case {
    int row;
    bool with_row_0;
    int back_at;
  };
  for (const Case& it : {Case{9, false, 9}, Case{0, false, 7}, Case{0, true, 0}}) {
    grid.MoveTo(it.row, 1);
    grid.SetFirstRow(6);
    const GridPlace place(grid);
    for (int row = 0; row < 20; ++row) grid.Select(row);
    grid.MoveTo(7, 1);
    grid.SetFirstRow(0);
    place.Restore(it.with_row_0);
    EXPECT_EQ(grid.Row(), it.back_at);
    EXPECT_EQ(grid.FirstRow(), 6);
  }
  // A read of other rows leaves the row that is being edited.
  grid.MoveTo(8, 1);
  grid.Type("1");
  grid.Select(9);
  EXPECT_EQ(grid.Row(), 8);
}

TEST_F(GridTest, TheFormsRulesGetKeysFirst) {
  std::string asked;
  grid.StartEdit = [&](int column, int key) {
    asked += std::to_string(column) + ":" + std::to_string(key) + " ";
    return column == 1 && (key == '7' || key == Grid::kNoKey);
  };
  grid.KeyPress = [](int /*column*/, int& key) { key = key == 'a' ? '1' : kKeyCancelled; };
  grid.MoveTo(0, 2);
  grid.Type("7");
  grid.MoveTo(0, 1);
  grid.Type("a");
  EXPECT_FALSE(grid.Opened());
  grid.OpenCell();
  EXPECT_TRUE(grid.Opened());
  EXPECT_EQ(asked, "2:55 1:97 1:0 ");
  grid.Type("ab");
  EXPECT_EQ(grid.Editor().Text(), "01");
}

TEST_F(GridTest, ADisabledGridTakesNothing) {
  grid.MoveTo(0, 2);
  grid.Type("a");
  form.window.SetEnabled(false);
  grid.Type("b");
  grid.Press(3, 3);
  grid.Enter();
  grid.Tab(true);
  grid.Escape();
  EXPECT_EQ(grid.Editor().Text(), "a");
  EXPECT_TRUE(grid.Commit());  // the program may
  EXPECT_EQ(form.ItemAt(0).text, "a       ");
}

}  // namespace
}  // namespace corvalis::test
