#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

#include "link/list_size.h"

namespace corvalis {

/// The programme items: when programmes are scheduled to start, and of what type they are. Rows
/// count from 0; an index outside the list is `std::out_of_range`.
class PinData {
 public:
  /// Loads itself from the file.
  PinData();

  [[nodiscard]] std::int16_t MaxPinNum() const { return size_.Count(); }
  /// Day of the month, 1 to 31; 0 in a new row.
  [[nodiscard]] std::int16_t MonthDay(std::int16_t row) const { return At(row).day; }
  void SetMonthDay(std::int16_t row, std::int16_t day) { At(row).day = day; }
  /// Time of the day.
  [[nodiscard]] std::chrono::minutes Time(std::int16_t row) const { return At(row).time; }
  void SetTime(std::int16_t row, std::chrono::minutes time) { At(row).time = time; }
  /// 0 to 31, the index of `ProgramTypeNames`.
  [[nodiscard]] std::int32_t ProgramType(std::int16_t row) const { return At(row).type; }
  void SetProgramType(std::int16_t row, std::int32_t type) { At(row).type = type; }
  /// Set by the Coder.
  [[nodiscard]] bool Issued(std::int16_t row) const { return At(row).issued; }
  void SetIssued(std::int16_t row, bool issued) { At(row).issued = issued; }

  /// Reads the row from the Coder. A failure leaves it as it was.
  void GetOneRds(std::int16_t row);
  void SetOneRds(std::int16_t row) const;

  /// Loads the list from the file, from nothing, in the size that the Coder or the file says.
  void GetIni();
  void SetIni() const;

 private:
  struct Row {
    std::int16_t day = 0;
    std::chrono::minutes time{0};
    std::int32_t type = 0;
    bool issued = false;
  };
  [[nodiscard]] const Row& At(std::int16_t row) const {
    return rows_.at(static_cast<std::size_t>(row));
  }
  [[nodiscard]] Row& At(std::int16_t row) { return rows_.at(static_cast<std::size_t>(row)); }

  ListSize size_;
  std::vector<Row> rows_;
};

/// The items; null before `MainForm` has created them.
extern PinData* pinData;

}  // namespace corvalis
