// The CT tab, driven through its controls against the Coder in memory.

#include "station/ct_tab.h"

#include <gtest/gtest.h>

#include <tuple>

#include "station/ct_tp_di_pi_form.h"
#include "support/station_screen.h"

namespace corvalis::test {
namespace {

using namespace std::chrono_literals;
using std::chrono::December;
using std::chrono::February;
using std::chrono::March;
using std::chrono::November;

constexpr std::uint8_t kCt = 0x10;
constexpr auto kToday = 2026y / November / 15;  // a Sunday

class CtTabTest : public StationScreenTest<CtTpDiPiForm> {
 protected:
  CtTabTest() { time.SetTimer(9 * 3600 + 5 * 60 + 30); }
  CtTab& Tab() const { return form->ct; }
  static DateTime At(std::chrono::year_month_day date, std::chrono::hours h,
                     std::chrono::minutes m) {
    return std::chrono::local_days{date} + h + m;
  }
};

TEST_F(CtTabTest, FirstOpeningShowsThePresentTimeBesideARecordOfMidnight) {
  OpenScreen(kLocal);
  EXPECT_EQ(Tab().Calendar1.Date(), kToday);
  EXPECT_EQ(Tab().Text1.Text(), "09:05");
  EXPECT_EQ(Tab().Text9.Text(), "+01.0");
  Tab().Command2.Press();
  EXPECT_EQ(Held(kCt), "26111570000080926");
  Tab().VScroll1.PressUp();
  configData->SetDateValue(At(2026y / November / 16, 9h, 6min));
  Tab().Command2.Press();
  EXPECT_EQ(Held(kCt), "26111610906080926");
  EXPECT_EQ(Tab().Calendar1.Date(), 2026y / November / 16);  // what was sent

  form->window.Close();
  time.SetTimer(20 * 3600);
  configData->SetDateValue(At(2027y / March / 1, 4h, 30min));
  form->Load();
  EXPECT_EQ(Tab().Calendar1.Date(), 2027y / March / 1);
  EXPECT_EQ(Tab().Text1.Text(), "09:06");
  EXPECT_EQ(configData->DateValue(), At(2027y / March / 1, 4h, 30min));
}

TEST_F(CtTabTest, HourAndMinuteWrapAndAPickedDateTakesThem) {
  OpenScreen(kLocal);
  const std::tuple<int, int, const char*> cases[] = {
      {0, -6, "09:59"}, {0, +1, "09:00"}, {-10, 0, "23:00"}};
  for (const auto& [hours, minutes, shown] : cases) {
    Step(Tab().VScroll2, hours);
    Step(Tab().VScroll1, minutes);
    EXPECT_EQ(Tab().Text1.Text(), shown);
  }
  EXPECT_EQ(configData->DateValue(), At(kToday, 23h, 0min));
  Tab().Calendar1.Pick(2028y / February / 29);
  EXPECT_EQ(configData->DateValue(), At(2028y / February / 29, 23h, 0min));
  Tab().Command2.Press();
  EXPECT_EQ(Held(kCt), "28022922300080926");  // a Tuesday
}

TEST_F(CtTabTest, OffsetStepsBetweenItsLimits) {
  OpenScreen(kLocal);
  const std::tuple<std::int16_t, int, int, const char*> cases[] = {
      {200, +1, 200, "+100.0"}, {-23, -2, -24, "-12.0"}, {0, -1, -1, "-00.5"}};
  for (const auto& [before, step, after, shown] : cases) {
    configData->SetCtOffset(before);
    form->Load();
    Tab().Text9.SetText("");
    Step(Tab().VScroll6, step);
    EXPECT_EQ(configData->CtOffset(), after);
    EXPECT_EQ(Tab().Text9.Text(), shown) << before;
  }
}

TEST_F(CtTabTest, TypedOffsetIsInWholeHoursAndWithoutLimit) {
  OpenScreen(kLocal);
  Tab().VScroll6.PressUp();
  form->window.MoveFocus(&Tab().Text9);
  form->window.MoveFocus(&Tab().Command2);
  EXPECT_EQ(configData->CtOffset(), 3);  // nobody has typed the "+01.5" that stood there
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.SelectAll();
  Tab().Text9.Type("x");
  form->window.MoveFocus(&Tab().Command2);
  EXPECT_EQ(Tab().Text9.Text(), "03");  // half hours
  form->window.MoveFocus(&Tab().Text9);
  Tab().Text9.Select(1, 1);
  Tab().Text9.Type("3");
  form->window.MoveFocus(&Tab().Command2);
  EXPECT_EQ(configData->CtOffset(), 6);  // the same text, but from a hand: hours
  const std::tuple<std::int16_t, const char*, int, const char*> cases[] = {
      {2, "5", 10, "5"}, {2, "+1.6", 4, "+1.6"}, {2, "100", 200, "100"},
      {3, "x", 3, "03"}, {2, "40000", 2, "02"},  // beyond what the record can hold
  };
  for (const auto& [before, typed, after, shown] : cases) {
    configData->SetCtOffset(before);
    form->window.MoveFocus(&Tab().Text9);
    Tab().Text9.Edit(typed, 0);
    form->window.MoveFocus(&Tab().Command2);
    EXPECT_EQ(configData->CtOffset(), after) << typed;
    EXPECT_EQ(Tab().Text9.Text(), shown) << typed;
  }
}

TEST_F(CtTabTest, PsnNumbersAreRepairedAtEveryChange) {
  OpenScreen(kLocal);
  const std::tuple<TextBox&, const char*, const char*> boxes[] = {{Tab().Text7, "08", "09"},
                                                                  {Tab().Text8, "09", "08"}};
  for (const auto& [box, own, other] : boxes) {
    for (const char* bad : {"", "1.5", "100", "-1", other}) {
      box.Edit(bad, 0);
      EXPECT_EQ(box.Text(), own) << bad;
    }
  }
  Tab().Text7.SelectAll();
  Tab().Text7.Type("942");  // the 9 is taken, and the next digit begins another number
  Tab().Text8.Edit("0", 1);
  EXPECT_EQ(configData->DatePsn(), 42);
  EXPECT_EQ(configData->HourPsn(), 0);
}

TEST_F(CtTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  Hold(kCt, "30123112359091100");
  Tab().Command1.Press();
  EXPECT_EQ(port.written, std::vector<Bytes>{Hex("02 10 00 03 11")});
  // An impossible date says nothing, and the rest of the answer counts.
  Hold(kCt, "26023171010021327");
  Tab().Command1.Press();
  EXPECT_EQ(Boxes(), no_boxes);
  EXPECT_EQ(Tab().Calendar1.Date(), 1930y / December / 31);
  EXPECT_EQ(Tab().Text1.Text(), "23:59");
  EXPECT_EQ(configData->DateValue(), At(1930y / December / 31, 23h, 59min));
  EXPECT_EQ(Tab().Text7.Text(), "02");
  EXPECT_EQ(Tab().Text8.Text(), "13");
  EXPECT_EQ(Tab().Text9.Text(), "+01.5");
}

TEST_F(CtTabTest, OneWayLinkHasNoReadAndKeepsTheAddressRule) {
  OpenScreen(kSatellite);
  EXPECT_FALSE(Tab().Command1.Visible());
  ExpectAddressRule({&Tab().Command2});
  Tab().Command2.Press();
  EXPECT_EQ(Written().size(), 1U);
}

}  // namespace
}  // namespace corvalis::test
