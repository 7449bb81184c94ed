// Runs of frames.

#include "link/transfer.h"

#include <gtest/gtest.h>

#include "link/engine_fixture.h"

namespace corvalis::test {
namespace {

TEST_F(EngineTest, RunEndsAtTheFirstItemThatFails) {
  StartLocal();
  LinkError = kErrorTxTimeout;  // of something before
  port.answer = [this](const Bytes&) { return port.written.size() < 3 ? Bytes{kAck} : Refusal(2); };
  RunItems(5, [this](int) { WriteTp(); });
  EXPECT_EQ(port.written.size(), 3U);
  EXPECT_EQ(LinkError, 2);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(EngineTest, RunGoesOnOverNoiseBetweenItsFrames) {
  StartLocal();
  RunItems(2, [this](int) {
    WriteTp();
    time.After(0, [this] { port.Receive(Bytes(Queue::kCapacity + 1, 'x')); });
  });
  EXPECT_EQ(port.written.size(), 2U);
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace corvalis::test
