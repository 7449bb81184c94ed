#include "link/utility.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace corvalis::test
