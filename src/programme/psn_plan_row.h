#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "link/list_commands.h"

namespace corvalis {

inline constexpr int kWeekdays = 7;

/// One moment at which the Coder by itself changes to a page: a time of the day on weekdays, or on
/// one date. A new one is all zero.
struct PsnPlanRow {
  std::uint8_t hour = 0;    ///< 0 to 23
  std::uint8_t minute = 0;  ///< 0 to 59
  std::uint8_t day = 0;     ///< of the date; 0: no date
  std::uint8_t month = 0;
  std::int16_t year = 0;                   ///< four digits
  std::array<bool, kWeekdays> weekdays{};  ///< from Monday
  std::uint8_t page = 0;
  bool enable = false;

  /// "hh:mm"; set from the digits at its places. A number that can't be read leaves its field.
  [[nodiscard]] std::string Time() const;
  void SetTime(const std::string& text);
  /// "dd-mm-yyyy", and "00-00-0000" without a date; set from the digits at its places.
  [[nodiscard]] std::string TimeDate() const;
  void SetTimedate(const std::string& text);

  /// What travels. A year has two digits: below 90 it is of this century.
  [[nodiscard]] PlanFields Fields() const;
  void SetFields(const PlanFields& fields);

  /// As the value of a key. Read, a weekday is set by exactly "On".
  [[nodiscard]] std::string FileValue() const;
  void SetFileValue(const std::string& text);

 private:
  [[nodiscard]] std::string DateDigits() const;
};

}  // namespace corvalis
