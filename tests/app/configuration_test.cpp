// A whole configuration on its way.

#include <gtest/gtest.h>

#include <limits>

#include "app/connection_screen.h"
#include "busy/serial_communication_form.h"
#include "busy/transfer_bracket.h"

namespace corvalis::test {
namespace {

TEST_F(ConnectionTest, AllItemsTravelInTheirOrder) {
  const std::string names = "PSN Pages Enable=Off\nAF Method A=Off\n";
  const Runs end = {{kPi, 1}, {kCt, 1},  {kTp, 1},    {kDi, 1},        {kEcc, 1}, {kLic, 1},
                    {kLi, 1}, {kEon, 2}, {kPtyn, 32}, {kTmcSystem, 1}, {kTmc, 2}};
  const auto all = [&](const Runs& first, int pages) {
    Runs runs = first;
    runs.insert(runs.end(), {{kRt, 3}, {kPin, 3}, {kAf, 3}, {kTdc, 131}});
    if (pages > 0) runs.emplace_back(kIh, 17 * pages);
    runs.insert(runs.end(), end.begin(), end.end());
    return runs;
  };
  const auto shows_the_record = [this] {
    EXPECT_EQ(form->AFAOption.Chosen(), configData->AfMethodA());
    EXPECT_EQ(form->AFBOption.Chosen(), !configData->AfMethodA());
    EXPECT_EQ(form->PSNPagesCheck.Checked(), configData->PsnPagesEnable());
  };
  OpenScreen(File(kLocal, kAll, names));
  shows_the_record();
  Refuse([](const Bytes&) { return false; });
  int shown = 0;
  time.After(0, [&] { shown = TransferScreenStands() ? 1 : 0; });
  form->Command11.Press();
  EXPECT_EQ(shown, 1);
  const auto first_tdc = std::find_if(port.written.begin(), port.written.end(),
                                      [](const Bytes& frame) { return frame[1] == kTdc; });
  ASSERT_NE(first_tdc, port.written.end());
  EXPECT_EQ((first_tdc + 1)->at(2), 32);    // the subchannels go before the channels
  EXPECT_EQ(Codes(), all({{kPsn, 3}}, 0));  // in-house pages are not sent: meant
  port.answer = nullptr;
  form->Command1.Press();
  EXPECT_EQ(Codes(), all({{kPsn, 3}}, 2));
  EXPECT_EQ(Boxes(), no_boxes);

  OpenScreen(File(kLocal, kAll, "PSN Plan Enable=On\n"));
  shows_the_record();
  form->AFBOption.Press();
  form->Command1.Press();
  EXPECT_EQ(Codes(), all({{kPage, 6}, {kPlan, 2}}, 2));
  OpenScreen(File(kLocal, "Psn", "PSN Plan Enable=Off\n"));
  form->Command1.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 6}}));
  OpenScreen(File(kLocal, "", names));
  shows_the_record();
  form->Command11.Press();
  form->Command1.Press();
  EXPECT_EQ(Codes(), Runs{});
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(ConnectionTest, BurstsRepeatAllOfIt) {
  OpenScreen(File(kSatellite, "Psn Pi Ct Ih", "PSN Plan Enable=Off\n"));
  EXPECT_FALSE(form->Command1.Visible());
  EXPECT_TRUE(form->Command12.Visible());
  using std::chrono::local_days;
  const DateTime then = local_days{std::chrono::year{2027} / 3 / 1} + std::chrono::hours(4) +
                        std::chrono::minutes(30);
  configData->SetDateValue(then);
  configData->SetDayOfWeek(1);
  ExpectAddressRule({&form->Command11, &form->Command12});
  form->Command12.Press();
  const auto clock_of = [](const Bytes& frame) {
    const Bytes body = Body(frame);
    return std::string(body.begin(), body.begin() + 11);
  };
  for (const Bytes& frame : port.written) {
    if (frame[1] != kCt) continue;
    EXPECT_EQ(clock_of(frame), "27030110430");
  }
  const Runs pass = {{kPage, 6}, {kPlan, 2}, {kPi, 1}, {kCt, 1}};  // the plan goes along: meant
  Runs passes;
  for (int i = 0; i < 3; ++i) passes.insert(passes.end(), pass.begin(), pass.end());
  EXPECT_EQ(Codes(), passes);
  EXPECT_EQ(configData->DateValue(), then);
  form->Command11.Press();
  EXPECT_EQ(clock_of(port.written.back()).substr(6, 1),
            std::to_string(WeekdayFromMonday(machine.clock->Now())));
  EXPECT_NE(clock_of(port.written.back()), "27030110430");
  EXPECT_EQ(Codes(), (Runs{{kPage, 6}, {kPi, 1}, {kCt, 1}}));
  EXPECT_EQ(configData->DateValue(), machine.clock->Now());
  EXPECT_EQ(configData->DayOfWeek(), WeekdayFromMonday(machine.clock->Now()));

  // An abort ends the passes.
  for (const int code : {kPage, kPi}) {
    port.Wrote = [this, code] {
      if (port.written.back()[1] == code) EscPressed = true;
    };
    form->Command12.Press();
    const Runs runs = Codes();
    EXPECT_EQ(runs.back(), std::pair(code, 1));
    EXPECT_EQ(
        std::count_if(runs.begin(), runs.end(), [](const auto& run) { return run.first == kPage; }),
        1);
    EXPECT_FALSE(EscPressed);
  }
  EXPECT_EQ(Boxes(), no_boxes);
}

// What a page and the plan do after a failure, in each way.
TEST_F(ConnectionTest, ThePagesGoOnInAWayOfTheirOwn) {
  const auto first_row = [](const Bytes& frame) { return frame[1] == kPage && frame[3] == '0'; };
  OpenScreen(File(kLocal, "Psn Pi", "PSN Plan Enable=On\n"));
  Refuse(first_row);
  form->Command11.Press();
  // The first page ends at its first row; the next, the plan and all else go on.
  EXPECT_EQ(Codes(), (Runs{{kPage, 1 + 3}, {kPlan, 2}, {kPi, 1}}));
  EXPECT_EQ(Boxes().size(), 1U);
  Refuse([](const Bytes& frame) { return frame[1] == kPage || frame[1] == kPlan; });
  form->Command11.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 2}, {kPlan, 1}}));
  EXPECT_EQ(Boxes().size(), 3U);
  form->Command1.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 1}, {kPlan, 1}}));
  EXPECT_EQ(Boxes().size(), 2U);
  Refuse(first_row);
  std::string last;
  port.Wrote = [&last] { last = StandingTransfer()->ProgressLabel.Caption(); };
  form->Command1.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 1}, {kPlan, 2}, {kPi, 1}}));
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(last.substr(0, 6), "9 of 9");  // what was left out is over
}

// Whatever happens to the line at some item of some step: it is said once, the rest is left, and
// the next run works.
TEST_F(ConnectionTest, FaultsInMidTransfer) {
  struct Fault {
    const char* name;
    std::function<Bytes(const Bytes& answer)> answer;
    std::size_t boxes = 1;
  };
  const Fault faults[] = {
      {"refused", [](const Bytes&) { return Bytes{0x15, 0x02, 0x00, 0x03, 0x03, 0x02}; }},
      {"silent", [](const Bytes&) { return Bytes{}; }},
      {"garbage",
       [](const Bytes&) {
         return Bytes{0x55, 0xAA, 0x06};
       }},
      {"cut", [](const Bytes& answer) { return Bytes(answer.begin(), answer.end() - 1); }},
      {"unplugged",
       [this](const Bytes&) {
         LinkOpen = false;
         return Bytes{};
       }},
      {"aborted",
       [this](const Bytes&) {
         time.After(1, [] { EscPressed = true; });
         return Bytes{};
       },
       0}};
  const std::tuple<const char*, int, int> steps[] = {
      {"Psn", kPsn, 3},   {"Rt", kRt, 3},   {"Pin", kPin, 3},    {"Af", kAf, 3},
      {"Tdc", kTdc, 131}, {"Ih", kIh, 34},  {"Pi", kPi, 1},      {"Ct", kCt, 1},
      {"Tp", kTp, 1},     {"Di", kDi, 1},   {"Ecc", kEcc, 1},    {"Lic", kLic, 1},
      {"Li", kLi, 1},     {"Eon", kEon, 2}, {"Ptyn", kPtyn, 32}, {"Tmc", kTmcSystem, 1},
      {"Tmc", kTmc, 2}};
  unsigned random = 20261125;
  for (const auto& [preset, code, frames] : steps) {
    for (const Fault& fault : faults) {
      for (const bool send : {false, true}) {
        if (send && code == kIh) continue;  // never sent
        random = random * 1103515245 + 12345;
        const int at = static_cast<int>(random >> 16) % frames;
        SCOPED_TRACE(std::string(preset) + " " + fault.name + (send ? " sent, " : " read, ") +
                     std::to_string(at));
        OpenScreen(File(kLocal, std::string(preset) + " Ptyn", "PSN Pages Enable=Off\n"));
        configData->SetAfMethodA(false);
        Button& button = send ? form->Command11 : form->Command1;
        int seen = 0;
        port.answer = [&, target = code](const Bytes& frame) {
          Bytes answer;
          for (const auto& one : line->Take(frame)) {
            answer.insert(answer.end(), one.bytes.begin(), one.bytes.end());
          }
          return frame[1] == target && seen++ >= at ? fault.answer(answer) : answer;
        };
        button.Press();
        EXPECT_EQ(Boxes().size(), fault.boxes);
        const Runs runs = Codes();
        ASSERT_FALSE(runs.empty());
        EXPECT_EQ(runs.back().first, code);  // nothing after it
        EXPECT_TRUE(form->window.Enabled());
        EXPECT_FALSE(EscPressed);
        LinkOpen = true;
        seen = std::numeric_limits<int>::min();  // the line is good again
        button.Press();
        EXPECT_EQ(Boxes(), no_boxes);
        EXPECT_EQ(Codes().back().first, code < kTmcSystem ? kPtyn : kTmc);
      }
    }
  }
}

TEST_F(ConnectionTest, ItSaysHowFarItIsAndWhatIsLeftByWhatHasPassed) {
  OpenScreen(File(kLocal, "Rt Pi"));
  std::vector<std::string> told;
  port.Wrote = [&] {
    if (StandingTransfer() == nullptr) return;
    told.push_back(StandingTransfer()->ProgressLabel.Caption());
    time.Stall(5);  // a slow line
  };
  form->Command11.Press();
  EXPECT_EQ(told, (std::vector<std::string>{"RT: 1 of 3; 1 of 4, about a second left",
                                            "RT: 2 of 3; 2 of 4, about 11 seconds left",
                                            "RT: 3 of 3; 3 of 4, about 6 seconds left",
                                            "4 of 4, about a second left"}));
}

// A Coder that has not been addressed refuses all. The transfer screen says what the way is, and
// its ESC beside the first box ends the rest, whatever the Coder would say to it, and nothing
// later.
TEST_F(ConnectionTest, TheWayOutOfManyBoxes) {
  const std::string hint = "The Coder wants its address first: CONNECTION, SEND ID.";
  const std::string ends = " ESC ends the rest.";
  const std::tuple<const char*, Button ConnectionForm::*, std::string, Runs> cases[] = {
      {"Psn", &ConnectionForm::Command11, hint + ends, {{kPage, 1}}},
      {"Psn", &ConnectionForm::Command1, hint + ends, {{kPage, 1}}},
      {"Pi", &ConnectionForm::Command11, hint, {{kPi, 1}}}};  // a single frame, and no rest
  for (const auto& [preset, button, said, sent] : cases) {
    OpenScreen(File(kLocal, preset, "PSN Plan Enable=On\n"));
    port.answer = [](const Bytes&) { return Bytes{0x15, 0x02, 0x00, 0x08, 0x03, 0x09}; };
    dialogs.Shown = [&, words = said] {
      EXPECT_EQ(StandingTransfer()->HintLabel.Caption(), words);
      StandingTransfer()->Command1.Press();
    };
    ((*form).*button).Press();
    EXPECT_EQ(Codes(), sent);
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_FALSE(EscPressed);
    dialogs.Shown = nullptr;
    port.answer = nullptr;
  }
}

TEST_F(ConnectionTest, OnAClosedLinkSingleValuesAreSilent) {
  OpenScreen(File(kLocal, "Pi Tp"));
  LinkOpen = false;
  form->Command11.Press();
  form->Command1.Press();
  EXPECT_EQ(Boxes(), no_boxes);
  OpenScreen(File(kLocal, "Pi Li Eon Tp"));
  LinkOpen = false;
  form->Command11.Press();
  EXPECT_EQ(Boxes().size(), 1U);  // the first other item
}

}  // namespace
}  // namespace corvalis::test
