// Runs of list commands that are disturbed or ended while they are under way.

#include <string>

#include "config/config_data.h"
#include "link/engine_fixture.h"
#include "link/list_commands.h"
#include "link/transfer.h"

namespace corvalis::test {
namespace {

class ListCommandsUnderWay : public EngineTest {
 protected:
  void SetUp() override { StartLocal(); }
};

const std::string kPage(kIhCharacters, 'N');

TEST_F(ListCommandsUnderWay, PageOnAOneWayPathStopsAtEsc) {
  configData->SetSatellite(true);
  time.After(0, [] { EscPressed = true; });
  SendIh(13, kPage, 7);
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_EQ(port.written.size(), 2U);
}

// Each pump brings more bytes than the queue holds, behind those that were due.
class NoisyPump : public Pump {
 public:
  NoisyPump(Pump& pump, MemoryPort& port) : pump_(pump), port_(port) {}
  void RunPending() override {
    pump_.RunPending();
    port_.Receive(Bytes(Queue::kCapacity + 1, 'x'));
  }
  void RunUntil(double deadline) override {
    pump_.RunUntil(deadline);
    port_.Receive(Bytes(Queue::kCapacity + 1, 'x'));
  }

 private:
  Pump& pump_;
  MemoryPort& port_;
};

TEST_F(ListCommandsUnderWay, NoiseBetweenTheFramesOfAPageIsNoFailure) {
  NoisyPump noise(time, port);
  machine.pump = &noise;
  std::string text;
  std::int16_t rotation = 0;
  SendIh(0, kPage, 7);
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_EQ(port.written.size(), 17U);
  ReadIh(0, text, rotation);
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_EQ(text, kPage);
  EXPECT_TRUE(dialogs.boxes.empty());

  port.written.clear();
  port.answer = [this](const Bytes&) {
    return port.written.size() < 17 ? Bytes{kAck} : Refusal(5);
  };
  SendIh(0, kPage, 7);
  EXPECT_EQ(LinkError, 5);  // not that of the bytes after it
}

TEST_F(ListCommandsUnderWay, NoiseInThePauseOfARunIsNoFailure) {
  NoisyPump noise(time, port);
  machine.pump = &noise;
  EXPECT_TRUE(RunItems(
      3, [this](int) { WriteTp(); }, 0.2F));
  EXPECT_EQ(LinkError, kLinkOk);
  port.answer = [](const Bytes&) { return Refusal(5); };
  EXPECT_FALSE(RunItems(
      3, [this](int) { WriteTp(); }, 0.2F));
  EXPECT_EQ(LinkError, 5);
  EXPECT_NEAR(time.Elapsed(), 3 * 0.2, 0.01);  // no pause behind the failure
}

}  // namespace
}  // namespace corvalis::test
