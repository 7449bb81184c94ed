#include "screen/control_array.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "screen/meter.h"

namespace corvalis::test {
namespace {

TEST(ControlArrayTest, ControlsAreFoundByIndexAndByName) {
  Window window(static_cast<int*>(nullptr), "Form");
  ControlArray<Meter, 12> bars(window, "Bar");
  EXPECT_EQ(window.Controls().size(), 12U);
  for (const int index : {0, 9, 11}) {
    EXPECT_EQ(window.Find("Bar(" + std::to_string(index) + ")"), &bars[index]);
  }
  for (const int index : {-1, 12}) EXPECT_THROW(bars[index].SetValue(1), std::out_of_range);
  int drawn = 0;
  for (Meter& bar : bars) bar.Drawn = [&drawn] { ++drawn; };
  for (const auto& [value, shown] : {std::pair(500, 500), {1001, 1000}, {2000, 1000}, {-1, 0}}) {
    bars[3].SetValue(value);
    EXPECT_EQ(bars[3].Value(), shown);
  }
  EXPECT_EQ(drawn, 3);  // where the bar changes
}

}  // namespace
}  // namespace corvalis::test
