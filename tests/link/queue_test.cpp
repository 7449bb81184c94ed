// The ring of received bytes.

#include "link/queue.h"

#include <gtest/gtest.h>

namespace corvalis {
namespace {

TEST(QueueTest, HoldsAllItsPlacesInOrder) {
  Queue queue;
  EXPECT_EQ(queue.QPop(), 0);
  for (int round = 0; round < 3; ++round) {  // the indexes wrap at another place each time
    for (int i = 0; i < Queue::kCapacity; ++i) queue.QPush(static_cast<std::uint8_t>(i * 7));
    EXPECT_TRUE(queue.QFull());
    queue.QPush(0xEE);  // dropped
    for (int i = 0; i < Queue::kCapacity; ++i) {
      ASSERT_EQ(queue.QPop(), static_cast<std::uint8_t>(i * 7));
    }
    EXPECT_TRUE(queue.QEmpty());
    queue.QPush(1);
    EXPECT_EQ(queue.QPop(), 1);
  }
}

}  // namespace
}  // namespace corvalis
