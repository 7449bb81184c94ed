#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/list_size.h"
#include "programme/psn_plan_row.h"
#include "programme/psn_row.h"

namespace corvalis {

/// The pages of programme service names, of which one is on the air, and the plan by which the
/// Coder changes between them. Pages and rows count from 0; an index outside is
/// `std::out_of_range`.
class PsnPageData {
 public:
  /// Loads itself from the file.
  PsnPageData();

  // The pages.
  /// At most 16: a page's number is one digit.
  [[nodiscard]] std::int16_t MaxPsnPageNum() const { return pages_size_.Count(); }
  /// Rows of each page.
  [[nodiscard]] std::int16_t MaxPsnNum() const { return rows_size_.Count(); }
  /// The page on the screen.
  [[nodiscard]] std::uint8_t CurrentPage() const { return current_page_; }
  void SetCurrentPage(std::uint8_t page) { current_page_ = page; }

  /// As in `PsnData`.
  [[nodiscard]] const std::string& Data(std::uint8_t page, std::int16_t row) const {
    return At(page, row).data;
  }
  void SetData(std::uint8_t page, std::int16_t row, const std::string& text);
  [[nodiscard]] std::uint8_t RotationTime(std::uint8_t page, std::int16_t row) const {
    return At(page, row).rotation_time;
  }
  void SetRotationTime(std::uint8_t page, std::int16_t row, std::int16_t value);
  [[nodiscard]] bool Active(std::uint8_t page, std::int16_t row) const {
    return At(page, row).active;
  }
  void SetActive(std::uint8_t page, std::int16_t row, bool active) {
    At(page, row).active = active;
  }

  [[nodiscard]] std::uint8_t ScrollFrom() const { return scroll_.from; }
  void SetScrollFrom(std::uint8_t row) { scroll_.from = row; }
  [[nodiscard]] std::uint8_t ScrollTo() const { return scroll_.to; }
  void SetScrollTo(std::uint8_t row) { scroll_.to = row; }
  [[nodiscard]] std::uint8_t ScrollTime() const { return scroll_.time; }
  void SetScrollTime(std::uint8_t time) { scroll_.time = time; }

  /// Reads a row from the Coder. A failure leaves it as it was.
  void GetOneRds(std::uint8_t page, std::int16_t row);
  /// Sends a row. An active one goes out with the rotation time that the same row has on the page
  /// on the screen, whatever page is sent.
  void SetOneRds(std::uint8_t page, std::int16_t row) const;
  /// Reads which page is on the air and makes it the one on the screen.
  void GetOnePageActive();
  /// Puts a page on the air.
  static void SetOnePageActive(std::uint8_t page) { SendPsnPageActive(page); }

  // The plan.
  [[nodiscard]] std::int16_t MaxPsnPlanNum() const { return plans_size_.Count(); }
  [[nodiscard]] std::string Time(std::int16_t row) const { return Plan(row).Time(); }
  void SetTime(std::int16_t row, const std::string& text) { Plan(row).SetTime(text); }
  [[nodiscard]] std::uint8_t Hour(std::int16_t row) const { return Plan(row).hour; }
  void SetHour(std::int16_t row, std::uint8_t hour) { Plan(row).hour = hour; }
  [[nodiscard]] std::uint8_t Minute(std::int16_t row) const { return Plan(row).minute; }
  void SetMinute(std::int16_t row, std::uint8_t minute) { Plan(row).minute = minute; }
  [[nodiscard]] std::string TimeDate(std::int16_t row) const { return Plan(row).TimeDate(); }
  void SetTimedate(std::int16_t row, const std::string& text) { Plan(row).SetTimedate(text); }
  [[nodiscard]] std::uint8_t Day(std::int16_t row) const { return Plan(row).day; }
  /// Stores into the minute; dates go through `SetTimedate`.
  void SetDay(std::int16_t row, std::uint8_t day) { Plan(row).minute = day; }
  [[nodiscard]] std::uint8_t Month(std::int16_t row) const { return Plan(row).month; }
  void SetMonth(std::int16_t row, std::uint8_t month) { Plan(row).month = month; }
  [[nodiscard]] std::int16_t Year(std::int16_t row) const { return Plan(row).year; }
  void SetYear(std::int16_t row, std::int16_t year) { Plan(row).year = year; }
  /// Weekday 0 is Monday, 6 Sunday.
  [[nodiscard]] bool Weekday(std::int16_t row, int day) const {
    return Plan(row).weekdays.at(static_cast<std::size_t>(day));
  }
  void SetWeekday(std::int16_t row, int day, bool on) {
    Plan(row).weekdays.at(static_cast<std::size_t>(day)) = on;
  }
  [[nodiscard]] std::uint8_t Page(std::int16_t row) const { return Plan(row).page; }
  void SetPage(std::int16_t row, std::uint8_t page) { Plan(row).page = page; }
  [[nodiscard]] bool Enable(std::int16_t row) const { return Plan(row).enable; }
  void SetEnable(std::int16_t row, bool enable) { Plan(row).enable = enable; }

  /// Reads a row of the plan from the Coder. A failure leaves it as it was.
  void GetOneRdsPlan(std::int16_t row);
  void SetOneRdsPlan(std::int16_t row) const;

  /// Loads pages and plan from the file, from nothing, in the sizes that the Coder or the file
  /// says.
  void GetIni();
  void SetIni() const;

 private:
  [[nodiscard]] const PsnRow& At(std::uint8_t page, std::int16_t row) const {
    return pages_.at(page).at(static_cast<std::size_t>(row));
  }
  [[nodiscard]] PsnRow& At(std::uint8_t page, std::int16_t row) {
    return pages_.at(page).at(static_cast<std::size_t>(row));
  }
  [[nodiscard]] const PsnPlanRow& Plan(std::int16_t row) const {
    return plans_.at(static_cast<std::size_t>(row));
  }
  [[nodiscard]] PsnPlanRow& Plan(std::int16_t row) {
    return plans_.at(static_cast<std::size_t>(row));
  }

  ListSize pages_size_;
  ListSize rows_size_;
  ListSize plans_size_;
  std::uint8_t current_page_ = 0;
  PsnScroll scroll_;
  std::vector<std::vector<PsnRow>> pages_;
  std::vector<PsnPlanRow> plans_;
};

/// The pages; null before `MainForm` has created them.
extern PsnPageData* psnPageData;

}  // namespace corvalis
