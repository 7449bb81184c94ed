// The CT tab, driven through its controls against the Coder in memory.

#include "station/ct_tab.h"

#include <gtest/gtest.h>

#include <set>

#include "config/config_data.h"
#include "link/serial_management.h"
#include "station/ct_tp_di_pi_form.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

using namespace std::chrono_literals;
using std::chrono::December;
using std::chrono::February;
using std::chrono::local_days;
using std::chrono::March;
using std::chrono::November;

constexpr std::uint8_t kCt = 0x10;
constexpr auto kToday = 2026y / November / 15;  // a Sunday

class CtTabTest : public LinkTest {
 protected:
  void OpenScreen(const std::string& file, bool open_coder = true) {
    Start(file, {}, open_coder);
    Open();
    time.SetTimer(9 * 3600 + 5 * 60 + 30);
    form = std::make_unique<CtTpDiPiForm>(main_menu);
    main_menu.Show();
    form->Load();
    port.written.clear();
  }
  CtTab& Tab() const { return form->ct; }
  std::string Sent() const {
    const Bytes body = *the_coder->Item(kCt);
    return {body.begin(), body.end()};
  }
  void SetItem(const std::string& body) const {
    ASSERT_TRUE(the_coder->SetItem(kCt, 0, Bytes(body.begin(), body.end())));
  }
  static DateTime At(std::chrono::year_month_day date, std::chrono::hours h,
                     std::chrono::minutes m) {
    return local_days{date} + h + m;
  }
  void Leave() const { form->window.MoveFocus(&Tab().Command2); }

  Window main_menu{this, "MainForm"};
  std::unique_ptr<CtTpDiPiForm> form;
};

TEST_F(CtTabTest, OpensOnTodayWithThePresentTimeBesideARecordOfMidnight) {
  OpenScreen(kLocal);
  EXPECT_EQ(Tab().Calendar1.Date(), kToday);
  EXPECT_EQ(Tab().Text1.Text(), "09:05");
  EXPECT_EQ(configData->DateValue(), At(kToday, 0h, 0min));
  EXPECT_EQ(Tab().Text9.Text(), "+01.0");
  EXPECT_EQ(Tab().Text7.Text(), "08");
  EXPECT_EQ(Tab().Text8.Text(), "09");
  EXPECT_EQ(form->SSTab1.Captions(), (std::vector<std::string>{"CT", "TP-DI", "PI-ECC-LIC"}));

  Tab().Command2.Press();
  EXPECT_EQ(Sent(), "26111570000080926");
  Tab().VScroll1.PressUp();
  Tab().Command2.Press();
  EXPECT_EQ(Sent(), "26111570906080926");
  EXPECT_EQ(configData->DayOfWeek(), 7);
  EXPECT_EQ(port.written.back().size(), 22U);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CtTabTest, ControlsOfTheThreeTabsHaveNamesOfTheirOwn) {
  OpenScreen(kLocal);
  std::set<std::string> names;
  for (const Control* control : form->window.Controls()) {
    EXPECT_TRUE(names.insert(control->Name()).second) << control->Name();
  }
}

TEST_F(CtTabTest, LaterOpeningsKeepTheScreensTimeAndTakeTheRecordsDate) {
  OpenScreen(kLocal);
  form->window.Close();
  time.SetTimer(20 * 3600);
  configData->SetDateValue(At(2027y / March / 1, 4h, 30min));
  configData->SetCtOffset(-3);
  form->Load();
  EXPECT_EQ(Tab().Calendar1.Date(), 2027y / March / 1);
  EXPECT_EQ(Tab().Text1.Text(), "09:05");
  EXPECT_EQ(Tab().Text9.Text(), "-01.5");
  EXPECT_EQ(configData->DateValue(), At(2027y / March / 1, 4h, 30min));
}

TEST_F(CtTabTest, HourAndMinuteWrapAndDoNotCarry) {
  OpenScreen(kLocal);
  const auto press = [](Spinner& spinner, int steps) {
    for (int i = 0; i < std::abs(steps); ++i) steps > 0 ? spinner.PressUp() : spinner.PressDown();
  };
  struct Case {
    int hours, minutes;
    const char* shown;
    std::chrono::seconds time;
  };
  const Case cases[] = {{0, -5, "09:00", 9h},
                        {0, -1, "09:59", 9h + 59min},
                        {0, +1, "09:00", 9h},
                        {-10, 0, "23:00", 23h},
                        {+1, 0, "00:00", 0h}};
  for (const Case& c : cases) {
    press(Tab().VScroll2, c.hours);
    press(Tab().VScroll1, c.minutes);
    EXPECT_EQ(Tab().Text1.Text(), c.shown);
    EXPECT_EQ(configData->DateValue(), local_days{kToday} + c.time);
  }
}

TEST_F(CtTabTest, PickedDateTakesTheTimeOfTheScreen) {
  OpenScreen(kLocal);
  Tab().Calendar1.Pick(2028y / February / 29);
  EXPECT_EQ(configData->DateValue(), At(2028y / February / 29, 9h, 5min));
  Tab().Command2.Press();
  EXPECT_EQ(Sent(), "28022920905080926");
}

TEST_F(CtTabTest, OffsetStepsBetweenItsLimits) {
  OpenScreen(kLocal);
  struct Case {
    std::int16_t before;
    bool up;
    std::int16_t after;
    const char* shown;
  };
  const Case cases[] = {{2, true, 3, "+01.5"},      {0, false, -1, "-00.5"},
                        {23, true, 24, "+12.0"},    {24, true, 24, nullptr},
                        {-23, false, -24, "-12.0"}, {-24, false, -24, nullptr},
                        {200, false, 199, "+99.5"}, {-1, true, 0, "+00.0"}};
  for (const Case& c : cases) {
    configData->SetCtOffset(c.before);
    Tab().Text9.SetText("before");
    c.up ? Tab().VScroll6.PressUp() : Tab().VScroll6.PressDown();
    EXPECT_EQ(configData->CtOffset(), c.after);
    EXPECT_EQ(Tab().Text9.Text(), c.shown == nullptr ? "before" : c.shown) << c.before;
  }
}

TEST_F(CtTabTest, TypedOffsetIsInWholeHoursAndWithoutLimit) {
  OpenScreen(kLocal);
  struct Case {
    std::int16_t before;
    const char* typed;
    std::int16_t after;
    const char* shown;
  };
  const Case cases[] = {
      {2, "5", 10, "5"},     {2, "-3", -6, "-3"}, {2, "+1.6", 4, "+1.6"}, {2, "100", 200, "100"},
      {3, "x", 3, "03"},     {3, "", 3, "03"},    {-3, "1,5", -3, "-03"}, {24, "1e3", 24, "24"},
      {2, "40000", 2, "02"},  // beyond what the record can hold
  };
  for (const Case& c : cases) {
    configData->SetCtOffset(c.before);
    form->window.MoveFocus(&Tab().Text9);
    Tab().Text9.Edit(c.typed, 0);
    EXPECT_EQ(configData->CtOffset(), c.before);
    Leave();
    EXPECT_EQ(configData->CtOffset(), c.after) << c.typed;
    EXPECT_EQ(Tab().Text9.Text(), c.shown) << c.typed;
  }
}

TEST_F(CtTabTest, OffsetThatNobodyTypedStaysAsItIs) {
  OpenScreen(kLocal);
  Tab().VScroll6.PressUp();
  const auto pass_through = [this] {
    form->window.MoveFocus(&Tab().Text9);
    Leave();
    EXPECT_EQ(configData->CtOffset(), 3);
  };
  pass_through();
  EXPECT_EQ(Tab().Text9.Text(), "+01.5");
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.Edit("x", 1);
  Leave();
  pass_through();
  EXPECT_EQ(Tab().Text9.Text(), "03");

  // What the screen showed before is a typed text once it is typed again.
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.Edit("1", 1);
  Leave();
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.Edit("03", 1);
  Leave();
  EXPECT_EQ(configData->CtOffset(), 6);
}

TEST_F(CtTabTest, OffsetStepsFromWhatIsTypedInTheBox) {
  OpenScreen(kLocal);
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.Edit("-4", 2);
  Tab().VScroll6.PressUp();
  EXPECT_EQ(Tab().Text9.Text(), "-03.5");
  Tab().VScroll6.PressUp();
  EXPECT_EQ(configData->CtOffset(), -6);
  Leave();
  EXPECT_EQ(configData->CtOffset(), -6);
}

TEST_F(CtTabTest, OffsetBeyondTheLineIsRefusedByTheCoder) {
  OpenScreen(kLocal);
  const std::string before = Sent();
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.Edit("100", 3);
  Tab().Command2.Press();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "CT: [RDS]write mode not allowed");
  EXPECT_EQ(Sent(), before);
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(CtTabTest, PsnNumbersAreRepairedAtEveryChange) {
  OpenScreen(kLocal);
  struct Box {
    TextBox& box;
    std::int16_t (ConfigData::*number)() const;
    const char* own;
    const char* other;
  };
  const Box boxes[] = {{Tab().Text7, &ConfigData::DatePsn, "08", "09"},
                       {Tab().Text8, &ConfigData::HourPsn, "09", "08"}};
  for (const Box& b : boxes) {
    const std::int16_t before = (configData->*b.number)();
    for (const char* bad : {"", "x", "1.5", "1,5", "100", "-1", "99999", b.other, b.other + 1}) {
      b.box.Edit(bad, 0);
      EXPECT_EQ(b.box.Text(), b.own) << bad;
      EXPECT_EQ((configData->*b.number)(), before) << bad;
    }
    for (const auto& [good, number] :
         {std::pair("0", 0), std::pair("99", 99), std::pair("07", 7)}) {
      b.box.Edit(good, 0);
      EXPECT_EQ(b.box.Text(), good);
      EXPECT_EQ((configData->*b.number)(), number);
    }
    b.box.SelectAll();
    b.box.Type("42");
    EXPECT_EQ((configData->*b.number)(), 42);
    b.box.Edit(b.own, 0);
  }
  EXPECT_EQ(dialogs.beeps, 0);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CtTabTest, ADigitAfterARefusedOneBeginsAnotherNumber) {
  OpenScreen(kLocal);
  Tab().Text8.Edit("1", 1);
  Tab().Text7.SelectAll();
  Tab().Text7.Type("1");  // the hour's number
  EXPECT_EQ(Tab().Text7.Text(), "08");
  Tab().Text7.Type("2");
  EXPECT_EQ(Tab().Text7.Text(), "2");
  EXPECT_EQ(configData->DatePsn(), 2);
}

TEST_F(CtTabTest, PsnNumbersOfAFileAreShownAsTheyAre) {
  OpenScreen(std::string(kLocal) + "[CT]\nDate Psn Number=5\nHour Psn Number=5\n");
  EXPECT_EQ(Tab().Text7.Text(), "05");
  EXPECT_EQ(Tab().Text8.Text(), "05");
  configData->SetDatePsn(120);
  form->Load();
  EXPECT_EQ(Tab().Text7.Text(), "120");
  EXPECT_EQ(configData->DatePsn(), 120);
}

TEST_F(CtTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  SetItem("30123112359091100");
  Tab().Command1.Press();
  EXPECT_EQ(port.written, std::vector<Bytes>{Hex("02 10 00 03 11")});
  EXPECT_EQ(Tab().Calendar1.Date(), 1930y / December / 31);
  EXPECT_EQ(Tab().Text1.Text(), "23:59");
  EXPECT_EQ(configData->DateValue(), At(1930y / December / 31, 23h, 59min));
  EXPECT_EQ(configData->DayOfWeek(), 1);
  EXPECT_EQ(Tab().Text7.Text(), "09");
  EXPECT_EQ(Tab().Text8.Text(), "11");
  EXPECT_EQ(Tab().Text9.Text(), "-12.0");
  EXPECT_TRUE(form->window.Enabled());

  // An impossible date says nothing, and the rest of the answer counts.
  SetItem("26023171010021327");
  Tab().Command1.Press();
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(Tab().Calendar1.Date(), 1930y / December / 31);
  EXPECT_EQ(Tab().Text1.Text(), "23:59");
  EXPECT_EQ(Tab().Text7.Text(), "02");
  EXPECT_EQ(Tab().Text9.Text(), "+01.5");
}

TEST_F(CtTabTest, FailedReadShowsTheRecord) {
  OpenScreen(kLocal, /*open_coder=*/false);
  Tab().Command1.Press();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "CT: [RDS] before send address  ");
  EXPECT_EQ(Tab().Calendar1.Date(), kToday);
  EXPECT_EQ(Tab().Text1.Text(), "00:00");
  EXPECT_EQ(Tab().Text9.Text(), "+01.0");
}

TEST_F(CtTabTest, OneWayLinkHasNoReadAndKeepsTheAddressRule) {
  OpenScreen(kSatellite);
  EXPECT_FALSE(Tab().Command1.Visible());
  Tab().Command2.Press();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "Before send Address");
  EXPECT_TRUE(port.written.empty());
  AddressSent = true;
  Tab().Command2.Press();
  EXPECT_EQ(port.written.size(), 1U);
  EXPECT_EQ(Sent(), "26111570000080926");
}

}  // namespace
}  // namespace corvalis::test
