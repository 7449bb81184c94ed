// The wait screen, the transfer screen and the bracket around every transfer.

#include <gtest/gtest.h>

#include "busy/serial_communication_form.h"
#include "busy/transfer_bracket.h"
#include "config/config_data.h"
#include "link/run_progress.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

class BusyScreens : public LinkTest {
 protected:
  BusyScreens() { screen.Show(); }
  Window screen{this, "Screen"};
};

TEST_F(BusyScreens, TransferScreenAbortsAndClosesOnceForEachPermission) {
  Start(kLocal);
  int aborts = 0;
  SerialCommunicationForm form([&] { ++aborts; });
  form.window.Show(&screen);
  form.Command1.Press();
  form.Command1.TypeKey(27);
  EXPECT_EQ(aborts, 2);
  TransferCloseAllowed = false;
  form.window.Close();
  EXPECT_TRUE(form.window.Visible());
  TransferCloseAllowed = true;
  EXPECT_TRUE(form.window.Unload());
  EXPECT_FALSE(TransferCloseAllowed);
  EXPECT_FALSE(form.window.Unload());
  TheWaitForm().WaitTimer.Fire();
  EXPECT_EQ(TheWaitForm().WaitBar.Value(), 1);
  ReleaseWaitForm();
}

TEST_F(BusyScreens, BracketGoesItsRoad) {
  Start(kLocal);
  std::string order;
  const auto say = [&](const std::string& what) {
    order += what + (screen.Enabled() ? "+ " : "- ");
  };
  screen.RaiseAsked = [&] { say("focus"); };
  RunTransfer(screen, {.may_start =
                           [&] {
                             say("asked");
                             return true;
                           },
                       .work =
                           [&] {
                             say("work");
                             EXPECT_TRUE(StandingTransfer()->Command1.HasFocus());
                           },
                       .abort = [] {}});
  EXPECT_EQ(order, "asked- work- focus+ ");
  order.clear();
  RunTransfer(screen,
              {.may_start = [] { return false; }, .work = [&] { say("work"); }, .abort = {}});
  EXPECT_EQ(order, "focus+ ");
}

TEST_F(BusyScreens, ARunSaysHowFarItIs) {
  Start(kLocal);
  Open();
  std::vector<std::string> told;
  port.Wrote = [&] { told.push_back(StandingTransfer()->ProgressLabel.Caption()); };
  const auto frame = [](int /*item*/) { configData->SetPiRds(); };
  const std::pair<std::function<void()>, std::vector<std::string>> cases[] = {
      {[&] { frame(0); }, {""}},
      {[&] { RunItems(2, [&](int) { RunItems(1, frame); }); },
       {"PI: pass 1 of 2", "PI: pass 2 of 2"}},
      {[&] { RunItems(2, [&](int) { RunItems(2, frame); }); },
       {"PI: 1 of 2, pass 1 of 2", "PI: 2 of 2, pass 1 of 2", "PI: 1 of 2, pass 2 of 2",
        "PI: 2 of 2, pass 2 of 2"}},
      {[&] {
         RunItems(2, [&](int /*page*/) {
           RunLoop frames(2, "frame %1 of %2");
           frames.At(1);
           frame(0);
         });
       },
       {"PI: 1 of 2, frame 2 of 2", "PI: 2 of 2, frame 2 of 2"}}};
  for (const auto& [work, words] : cases) {
    told.clear();
    RunRead(screen, work);
    EXPECT_EQ(told, words);
  }
}

TEST_F(BusyScreens, EscWhileNothingWaitsAbortsTheNextTransfer) {
  Start(kLocal);
  Open();
  port.answer = [](const Bytes&) { return Bytes{}; };
  EscPressed = true;
  RunSend(screen, [] { configData->SetPiRds(); });
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(screen.Enabled());
}

}  // namespace
}  // namespace corvalis::test
