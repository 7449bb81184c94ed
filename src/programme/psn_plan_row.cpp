#include "programme/psn_plan_row.h"

#include <algorithm>
#include <string_view>

#include "config/conversions.h"
#include "config/joined_values.h"

namespace corvalis {

namespace {

constexpr int kCentury = 2000;
constexpr int kLastCentury = 1900;
constexpr int kFirstOfLastCentury = 90;
constexpr std::size_t kFirstWeekday = 6;  // among the fields that travel
constexpr std::size_t kPageField = kFirstWeekday + kWeekdays;

// The number at a place of a text; the field stays where there is none.
template <class Int>
void TakeDigits(std::string_view text, std::size_t from, std::size_t count, Int& field) {
  if (from > text.size()) return;
  if (const auto value = ParseDecimal<std::int32_t>(text.substr(from, count))) {
    field = Narrow<Int>(*value).value_or(field);
  }
}

}  // namespace

std::string PsnPlanRow::Time() const { return Digits(hour, 2) + ":" + Digits(minute, 2); }

void PsnPlanRow::SetTime(const std::string& text) {
  TakeDigits(text, 0, 2, hour);
  TakeDigits(text, 3, 2, minute);
}

std::string PsnPlanRow::DateDigits() const {
  return Digits(day, 2) + "-" + Digits(month, 2) + "-" + Digits(year, 4);
}

std::string PsnPlanRow::TimeDate() const { return day == 0 ? "00-00-0000" : DateDigits(); }

void PsnPlanRow::SetTimedate(const std::string& text) {
  TakeDigits(text, 0, 2, day);
  TakeDigits(text, 3, 2, month);
  TakeDigits(text, 6, 4, year);
}

PlanFields PsnPlanRow::Fields() const {
  // The third and the fourth character of the year.
  const std::string digits = std::to_string(year);
  std::uint8_t short_year = 0;
  TakeDigits(digits, 2, 2, short_year);

  PlanFields fields{static_cast<std::uint8_t>(enable), hour, minute, day, month, short_year};
  for (std::size_t i = 0; i < weekdays.size(); ++i) fields[kFirstWeekday + i] = weekdays[i] ? 1 : 0;
  fields[kPageField] = page;
  return fields;
}

void PsnPlanRow::SetFields(const PlanFields& fields) {
  enable = fields[0] != 0;
  hour = fields[1];
  minute = fields[2];
  day = fields[3];
  month = fields[4];
  const int century = fields[5] < kFirstOfLastCentury ? kCentury : kLastCentury;
  year = static_cast<std::int16_t>(fields[5] + century);
  for (std::size_t i = 0; i < weekdays.size(); ++i) weekdays[i] = fields[kFirstWeekday + i] != 0;
  page = fields[kPageField];
}

std::string PsnPlanRow::FileValue() const {
  JoinedWriter value;
  value.Add(Time()).Add(DateDigits());
  for (const bool weekday : weekdays) value.Switch(weekday);
  return value.Number(page, 1).Switch(enable).Ended();
}

void PsnPlanRow::SetFileValue(const std::string& text) {
  JoinedReader value(text);
  SetTime(std::string(value.Next()));
  SetTimedate(std::string(value.Next()));
  for (bool& weekday : weekdays) value.ExactSwitch(weekday);
  value.Number(page).ExactSwitch(enable);
}

}  // namespace corvalis
