// The modem's texts on the line.

#include "link/modem.h"

#include <gtest/gtest.h>

#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

Bytes Text(const std::string& text) { return {text.begin(), text.end()}; }

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
  struct Case {
    const char* name;
    double answer_after;  // seconds; 0 for never
    bool taken_away;      // before the wait could see it
    bool sends_command;
    double seconds;
  };
  // The clock stands at .6, which the deadline rounds up.
  const Case cases[] = {{"answered just in time", 20.3, false, true, 20.3},
                        {"unanswered", 0, false, false, 20.4},
                        {"answered too late", 20.5, false, false, 20.4},
                        {"answer taken away", 1, true, false, 20.4}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    time.SetTimer(36000.6);
    Open();
    port.written.clear();
    port.Receive(Text("stale"));
    if (c.answer_after > 0) {
      time.After(c.answer_after, [&] { port.Receive(Text("x")); });
      if (c.taken_away) time.After(c.answer_after, [] { EXPECT_EQ(ReadReceivedText(), "x"); });
    }
    ModemHangUp();
    std::vector<Bytes> expected{Text("+++")};
    if (c.sends_command) expected.push_back(Text("ATH0\r\n"));
    EXPECT_EQ(port.written, expected);
    EXPECT_NEAR(time.Elapsed(), c.seconds, 0.001);
    time.RunUntil(time.Timer() + 1);
  }
}

TEST_F(Modem, IsSilentOnAReleasedLink) {
  ReleaseLink();
  SendModemText("AT\r\n");
  EXPECT_EQ(ReadReceivedText(), "");
  ModemHangUp();
  EXPECT_TRUE(port.written.empty());
  EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace corvalis::test
