#include "station/ct_tab.h"

#include <chrono>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "config/conversions.h"
#include "config/language_data.h"
#include "link/transfer.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr int kHours = 24;
constexpr int kMinutes = 60;
constexpr int kMaxOffset = 24;  // half hours, both ways
constexpr int kMaxPsn = 99;

std::chrono::local_days DayOf(DateTime when) { return std::chrono::floor<std::chrono::days>(when); }

std::string PsnText(std::int16_t number) { return Digits(number, 2); }

}  // namespace

CtTab::CtTab(Window& owner) : window(owner) {
  Calendar1.Change = [this] { StoreDate(); };
  Text1.SetLocked(true);
  VScroll2.StepUp = [this] { StepTime(+1, 0); };
  VScroll2.StepDown = [this] { StepTime(-1, 0); };
  VScroll1.StepUp = [this] { StepTime(0, +1); };
  VScroll1.StepDown = [this] { StepTime(0, -1); };

  VScroll6.StepUp = [this] { StepOffset(+1); };
  VScroll6.StepDown = [this] { StepOffset(-1); };
  Text9.Change = [this] { offset_edited_ = true; };
  // A key that puts the same digit there changes nothing, but it is the operator's all the same.
  Text9.KeyPress = [this](int& key) { offset_edited_ = offset_edited_ || key >= ' '; };
  Text9.LostFocus = [this] { TakeOffset(); };

  Text7.Change = [this] {
    TakePsn(Text7, &ConfigData::DatePsn, &ConfigData::HourPsn, &ConfigData::SetDatePsn);
  };
  Text8.Change = [this] {
    TakePsn(Text8, &ConfigData::HourPsn, &ConfigData::DatePsn, &ConfigData::SetHourPsn);
  };

  Command1.Click = [this] { RunRead(window, [this] { Read(); }); };
  Command2.Click = [this] { RunSend(window, [this] { Send(); }); };
}

void CtTab::FirstOpening() {
  const DateTime now = Machine().clock->Now();
  TakeTime(now);
  configData->SetDateValue(DayOf(now));
}

void CtTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  HourMinLabel.SetTexts(texts.ClockHourMinKey(), texts.ClockHourMinTip());
  CtOffsetLabel.SetTexts(texts.ClockCTOffSetKey(), texts.ClockCTOffSetTip());
  DatePsnLabel.SetTexts(texts.ClockDatePSNKey(), texts.ClockDatePSNTip());
  HourPsnLabel.SetTexts(texts.ClockHourPSNKey(), texts.ClockHourPSNTip());
  Text1.SetToolTip(texts.ClockHourMinTip());
  VScroll2.SetToolTip(texts.ClockHourMinTip());
  VScroll1.SetToolTip(texts.ClockHourMinTip());
  Text9.SetToolTip(texts.ClockCTOffSetTip());
  VScroll6.SetToolTip(texts.ClockCTOffSetTip());
  Text7.SetToolTip(texts.ClockDatePSNTip());
  Text8.SetToolTip(texts.ClockHourPSNTip());
  Command1.SetTexts(texts.ClockReadKey(), texts.ClockReadTip());
  Command2.SetTexts(texts.ClockSendKey(), texts.ClockSendTip());
}

void CtTab::Open() {
  ShowTransferButtons({{&Command1}, {&Command2}, {}});
  Refresh();
}

void CtTab::TakeTime(DateTime when) {
  const std::chrono::hh_mm_ss time{when - DayOf(when)};
  hour_ = static_cast<int>(time.hours().count());
  minute_ = static_cast<int>(time.minutes().count());
}

void CtTab::StepTime(int hours, int minutes) {
  hour_ = (hour_ + hours + kHours) % kHours;
  minute_ = (minute_ + minutes + kMinutes) % kMinutes;
  ShowTime();
  StoreDate();
}

void CtTab::StepOffset(int step) {
  if (Text9.HasFocus()) TakeOffset();  // a step from the keyboard does not leave the box
  const int offset = configData->CtOffset();
  if (step > 0 ? offset < kMaxOffset : offset > -kMaxOffset) {
    configData->SetCtOffset(static_cast<std::int16_t>(offset + step));
  }
  ShowOffset(SignedHours(configData->CtOffset()));
}

void CtTab::TakeOffset() {
  // A text that nobody typed is no new offset: half hours on show would become whole ones.
  if (!std::exchange(offset_edited_, false)) return;
  if (const std::optional<double> hours = ParseNumber(Text9.Text())) {
    const double half_hours = 2 * std::round(*hours);
    if (std::abs(half_hours) <= std::numeric_limits<std::int16_t>::max()) {
      configData->SetCtOffset(static_cast<std::int16_t>(half_hours));
      return;
    }
  }
  ShowOffset(Digits(configData->CtOffset(), 2));  // a bare count, unlike the spinner's hours
}

void CtTab::TakePsn(TextBox& box, PsnGetter own, PsnGetter other, PsnSetter set) {
  const auto number = ParseDecimal<std::int16_t>(box.Text());
  if (number && *number >= 0 && *number <= kMaxPsn && *number != (configData->*other)()) {
    (configData->*set)(*number);
  } else {
    box.SetText(PsnText((configData->*own)()));
    box.SelectAll();  // the next digit begins another number
  }
}

void CtTab::StoreDate() {
  configData->SetDateValue(std::chrono::local_days{Calendar1.Date()} + std::chrono::hours(hour_) +
                           std::chrono::minutes(minute_));
}

void CtTab::ShowDate() {
  const DateTime when = configData->DateValue();
  Calendar1.SetDate(std::chrono::year_month_day{DayOf(when)});
  configData->SetDateValue(when);  // showing a date is no change: the record may hold midnight
}

void CtTab::ShowTime() { Text1.SetText(Digits(hour_, 2) + ":" + Digits(minute_, 2)); }

void CtTab::ShowOffset(const std::string& text) {
  Text9.SetText(text);
  offset_edited_ = false;
}

void CtTab::Refresh() {
  ShowDate();
  ShowTime();
  Text7.SetText(PsnText(configData->DatePsn()));
  Text8.SetText(PsnText(configData->HourPsn()));
  ShowOffset(SignedHours(configData->CtOffset()));
}

void CtTab::Read() {
  configData->GetCtRds();
  TakeTime(configData->DateValue());
  Refresh();
}

void CtTab::Send() {
  configData->SetDayOfWeek(static_cast<std::int16_t>(WeekdayFromMonday(configData->DateValue())));
  configData->SetCtRds();
  ShowDate();
}

}  // namespace corvalis
