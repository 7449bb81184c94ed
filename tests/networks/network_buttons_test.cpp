// The buttons of every list of the other networks and data channels, side by side.

#include <gtest/gtest.h>

#include <sstream>

#include "networks/eon_li_form.h"
#include "networks/networks_screen.h"
#include "networks/tdc_ih_form.h"

namespace corvalis::test {
namespace {

// Both screens, open at once.
struct NetworkScreens {
  explicit NetworkScreens(Window& main_menu) : eon_li(main_menu), tdc_ih(main_menu) {}
  void Load() {
    eon_li.Load();
    tdc_ih.Load();
  }
  EonLiForm eon_li;
  TdcIhForm tdc_ih;
  Window& window = eon_li.window;
};

// How the lists differ. All of it is meant.
struct List {
  const char *name, *buttons;  // read one, read all, send one, send all, burst; "-" for none
  bool on_eon_li;
  std::vector<int> frames;  // of one, of all, of each table of a pass
  const char* pauses;       // tenths of seconds after each item: read all, send all, burst
  int extra_passes;
  bool guards_sends, sends_one_way;
};

constexpr int kPage = 17;  // frames of an in-house page, and two tenths of a second at its end
const List kLists[] = {
    {"EON",
     "ReadEonCommand ReadEonAllCommand SendEonCommand SendEonAllCommand SendEonBurstCommand",
     true,
     {1, 12, 12},
     "222",
     1,
     true,
     true},
    {"LI",
     "ReadLiCommand - SendLiCommand - SendLiBurstCommand",
     true,
     {1, 0, 1},
     "--2",
     1,
     true,
     true},
    // None is selected. Two live sends need no address, and only the burst has pauses.
    {"EON TA",
     "ReadTaEonCommand ReadTaEonAllCommand SendTaEonCommand SendTaEonAllCommand "
     "SendTaEonAllBurstCommand",
     true,
     {0, 10, 10},
     "002",
     1,
     false,
     true},
    // Two tables: a burst goes through the one in all passes before the other.
    {"TDC",
     "Command2 Command3 Command5 Command6 Command4",
     false,
     {1, 131, 100, 31},
     "000",
     0,
     true,
     true},
    // No page is ticked.
    {"IH",
     "Command13 Command7 Command11 Command1 Command12",
     false,
     {0, 3 * kPage, 3 * kPage},
     "---",
     0,
     true,
     true},
    {"TMC system",
     "ReadTmcSystemCommand - SendTmcSystemCommand - SendTmcSystemBurstCommand",
     false,
     {1, 0, 1},
     "--2",
     1,
     true,
     false},
    {"TMC",
     "ReadTmcCommand ReadAllTmcCommand SendTmcCommand SendAllTmcCommand SendAllBurstTmcCommand",
     false,
     {1, 12, 12},
     "022",
     1,
     true,
     false}};

enum { kReadOne, kReadAll, kSendOne, kSendAll, kBurst };

class NetworkButtonsTest : public NetworksTest<NetworkScreens> {
 protected:
  NetworkButtonsTest() { sizes = {.eon = 12, .tmc = 12, .ih = 3}; }

  void OpenList(const List& list, const std::string& link, int burst = 2) {
    if (form != nullptr) form->tdc_ih.window.Close();
    OpenScreen(link + "Burst=" + std::to_string(burst) +
               "\n[EON]\nMaxEonNum=12\n[TMC]\nMaxListNum=12\n[Ih Pages]\nPage Count=3\n");
    const Window& window = list.on_eon_li ? form->eon_li.window : form->tdc_ih.window;
    std::istringstream names(list.buttons);
    std::string name;
    for (Button*& button : buttons) {
      names >> name;
      button = dynamic_cast<Button*>(window.Find(name));
    }
  }
  // Presses, and holds what went out and how long it took against `frames` and `pauses`.
  void ExpectRun(const List& list, int button, int frames) {
    SCOPED_TRACE(button);
    const double before = time.Elapsed();
    buttons.at(static_cast<std::size_t>(button))->Press();
    EXPECT_EQ(Written().size(), static_cast<std::size_t>(frames));
    EXPECT_EQ(Boxes(), no_boxes);
    const bool one = button == kReadOne || button == kSendOne;
    const char pause = one ? '0' : list.pauses[button == kReadAll ? 0 : button - kSendAll + 1];
    if (pause == '-') return;
    EXPECT_NEAR(time.Elapsed() - before, frames * (pause - '0') / 10.0, 0.01);
  }

  std::array<Button*, 5> buttons{};
};

TEST_F(NetworkButtonsTest, OnAOneWayLink) {
  for (const List& list : kLists) {
    SCOPED_TRACE(list.name);
    OpenList(list, kSatellite);
    for (const int button : {kReadOne, kReadAll, kSendOne, kSendAll, kBurst}) {
      const Button* shown = buttons.at(static_cast<std::size_t>(button));
      if (shown == nullptr) continue;
      EXPECT_EQ(shown->Visible(), button == kBurst || (button >= kSendOne && list.sends_one_way));
    }
    for (const int button : {kSendOne, kSendAll, kBurst}) {
      Button* send = buttons.at(static_cast<std::size_t>(button));
      if (send == nullptr || !send->Visible()) continue;
      AddressSent = false;
      if (button == kBurst || list.guards_sends) ExpectAddressRule({send});
      if (button != kBurst) ExpectRun(list, button, list.frames[button == kSendOne ? 0 : 1]);
    }
    int pass = 0;
    for (std::size_t table = 2; table < list.frames.size(); ++table) pass += list.frames[table];
    ExpectRun(list, kBurst, pass * (2 + list.extra_passes));

    // The operator's abort ends it, in the last table and pass too.
    const auto last = static_cast<std::size_t>(pass * (2 + list.extra_passes) - 1);
    port.Wrote = [this, last] { EscPressed = port.written.size() == last; };
    buttons[kBurst]->Press();
    EXPECT_EQ(Written().size(), last);
    port.Wrote = nullptr;

    OpenList(list, kSatellite, 0);
    AddressSent = true;
    ExpectRun(list, kBurst, pass * list.extra_passes);
  }
}

TEST_F(NetworkButtonsTest, OnATwoWayLink) {
  for (const List& list : kLists) {
    SCOPED_TRACE(list.name);
    OpenList(list, kLocal);
    EXPECT_FALSE(buttons[kBurst]->Visible());
    for (const int button : {kReadOne, kReadAll, kSendOne, kSendAll}) {
      Button* run = buttons.at(static_cast<std::size_t>(button));
      if (run == nullptr) continue;
      EXPECT_TRUE(run->Visible());
      const int frames = list.frames[button == kReadOne || button == kSendOne ? 0 : 1];
      ExpectRun(list, button, frames);
      if (frames < 3) continue;
      // The third frame stays without an answer: one box, and the rest is left.
      int seen = 0;
      port.Wrote = [&] {
        if (++seen == 2) port.line = nullptr;
      };
      run->Press();
      EXPECT_EQ(Written().size(), 3U);
      EXPECT_EQ(Boxes().size(), 1U);
      EXPECT_TRUE(run->ParentWindow().Enabled());
      port.Wrote = nullptr;
      port.line = line.get();
    }
  }
}

}  // namespace
}  // namespace corvalis::test
