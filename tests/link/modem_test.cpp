// The modem's texts on the line.

#include "link/modem.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "link/engine_fixture.h"

namespace corvalis::test {
namespace {

class Modem : public LinkTest {
 protected:
  Modem() {
    Start(kLocal);
    port.answer = [](const Bytes&) { return Bytes{}; };
    Open();
  }
};

TEST_F(Modem, TextGoesOutByteForByteAndDropsWhatCameBefore) {
  ModemDial("800,12345678", /*tone=*/true);
  ModemDial("", /*tone=*/false);
  port.Receive(Text("RING"));
  SendModemText("\xE9\x02\x03");
  EXPECT_EQ(port.written,
            (std::vector<Bytes>{Text("ATDT800,12345678\r\n"), Text("ATDP\r\n"), Hex("E9 02 03")}));
  EXPECT_EQ(ReadReceivedText(), "");
  port.Receive(Text("CONNECT"));
  port.Receive(Text(" 9600\r\n"));
  EXPECT_EQ(ReadReceivedText(), "CONNECT 9600\r\n");
  EXPECT_EQ(ReadReceivedText(), "");
}

TEST_F(Modem, HangUp) {
  // The clock stands at .6, which the deadline rounds up.
  for (const double answered : {20.3, 20.5}) {
    time.SetTimer(36000.6);
    const double begin = time.Elapsed();
    Open();
    port.written.clear();
    port.Receive(Text("stale"));
    time.After(1, [&] { port.Receive(Text("x")); });
    time.After(1, [] { EXPECT_EQ(ReadReceivedText(), "x"); });  // before the wait could see it
    time.After(answered, [&] { port.Receive(Text("OK")); });
    ModemHangUp();
    EXPECT_EQ(port.written.size(), answered < 20.4 ? 2U : 1U);
    EXPECT_NEAR(time.Elapsed() - begin, std::min(answered, 20.4), 0.001);
    time.RunUntil(time.Steady() + 1);
  }
}

}  // namespace
}  // namespace corvalis::test
