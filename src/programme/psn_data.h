#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/list_size.h"
#include "programme/psn_row.h"

namespace corvalis {

/// The list of programme service names that the Coder rotates through, where it has no pages. Rows
/// count from 0; an index outside the list is `std::out_of_range`.
class PsnData {
 public:
  /// Loads itself from the file.
  PsnData();

  [[nodiscard]] std::int16_t MaxPsnNum() const { return size_.Count(); }
  /// Always 8 characters; what is set is cut, or filled with blanks.
  [[nodiscard]] const std::string& Data(std::int16_t row) const { return At(row).data; }
  void SetData(std::int16_t row, const std::string& text);
  /// Kept as a byte. A row that isn't active keeps its time, but goes out with 0.
  [[nodiscard]] std::uint8_t RotationTime(std::int16_t row) const { return At(row).rotation_time; }
  void SetRotationTime(std::int16_t row, std::int16_t value);
  [[nodiscard]] bool Active(std::int16_t row) const { return At(row).active; }
  void SetActive(std::int16_t row, bool active) { At(row).active = active; }

  /// The rows of a scrolling text and the time that they get.
  [[nodiscard]] std::uint8_t ScrollFrom() const { return scroll_.from; }
  void SetScrollFrom(std::uint8_t row) { scroll_.from = row; }
  [[nodiscard]] std::uint8_t ScrollTo() const { return scroll_.to; }
  void SetScrollTo(std::uint8_t row) { scroll_.to = row; }
  [[nodiscard]] std::uint8_t ScrollTime() const { return scroll_.time; }
  void SetScrollTime(std::uint8_t time) { scroll_.time = time; }

  /// Reads the row from the Coder; a time of 0 means not active. A failure leaves the row as it
  /// was.
  void GetOneRds(std::int16_t row);
  /// Sends the row.
  void SetOneRds(std::int16_t row) const;

  /// Loads the list from the file, from nothing, in the size that the Coder or the file says.
  void GetIni();
  /// Stores it as page 0 of the pages.
  void SetIni() const;

 private:
  [[nodiscard]] const PsnRow& At(std::int16_t row) const {
    return rows_.at(static_cast<std::size_t>(row));
  }
  [[nodiscard]] PsnRow& At(std::int16_t row) { return rows_.at(static_cast<std::size_t>(row)); }

  ListSize size_;
  PsnScroll scroll_;
  std::vector<PsnRow> rows_;
};

/// The list; null before `MainForm` has created it.
extern PsnData* psnData;

}  // namespace corvalis
