#include "link/utility.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <string>

#include "screen/window.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

class UtilityTest : public MachineTest {};

TEST_F(UtilityTest, FrequencyKeyFilter) {
  struct Case {
    const char* text;
    int key;
    int max, sel_length, sel_start;
    bool point;
    int result;
  };
  const Case cases[] = {{"98.5", 8, 5, 0, 4, true, 8},    {"98.55", '1', 5, 1, 4, true, '1'},
                        {"98.55", '1', 5, 0, 5, true, 0}, {"98", ',', 5, 0, 2, true, '.'},
                        {"98", '.', 5, 0, 2, false, 0},   {"98.5", '.', 5, 2, 2, true, '.'},
                        {"98.5", '.', 5, 2, 0, true, 0},  {"98", 'A', 5, 2, 0, true, 0}};
  for (const Case& c : cases) {
    const int beeps = dialogs.beeps;
    int key = c.key;
    EXPECT_EQ(FrequencyKeyFilter(c.text, key, c.max, c.sel_length, c.sel_start, c.point), c.result)
        << c.text << " " << c.key;
    EXPECT_EQ(key, c.result);
    EXPECT_EQ(dialogs.beeps - beeps, c.result == 0 ? 1 : 0);
  }
}

class GridTest : public testing::Test {
 protected:
  GridTest() {
    window.Show();
    grid.RowCount = [this] { return static_cast<int>(rows.size()); };
    grid.Cell = [this](int row, int column) { return rows[row][column]; };
    grid.Write = [this](int row, int column, const std::string& text) { rows[row][column] = text; };
  }
  std::deque<std::map<int, std::string>> rows{{{0, "a"}, {1, "b"}}, {{0, "c"}, {1, "d"}}};
  Window window{this, "Test"};
  Grid grid{window, "DBGrid1"};
};

TEST_F(GridTest, CommitStoresTheEditAndComesBack) {
  for (const char* text : {"A", "B"}) {
    grid.TypeText(text);
    grid.MoveTo(0, 1);
    EXPECT_NE(rows[0][0], text);  // the row is still there
    grid.MoveTo(0, 0);
    CommitGridRow(grid);
    EXPECT_EQ(rows[0][0], text);
    EXPECT_EQ(grid.Row(), 0);
    rows.resize(1);  // a grid of one row has nowhere else to go
  }
}

}  // namespace
}  // namespace corvalis::test
