#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/list_commands.h"
#include "link/list_size.h"

namespace corvalis {

/// The radio texts that the Coder rotates through. Rows count from 0; an index outside the list is
/// `std::out_of_range`.
class RtData {
 public:
  /// Loads itself from the file.
  RtData();

  [[nodiscard]] std::int16_t MaxRtNum() const { return size_.Count(); }
  /// Always 64 characters; what is set is cut, or filled with blanks.
  [[nodiscard]] const std::string& Data(std::int16_t row) const { return At(row).data; }
  void SetData(std::int16_t row, const std::string& text);
  /// Kept as a byte, in the Coder's own units. There is no other switch: 0 stands for a text that
  /// is not sent.
  [[nodiscard]] std::uint8_t RotationTime(std::int16_t row) const { return At(row).rotation_time; }
  void SetRotationTime(std::int16_t row, std::int16_t value);
  void GetOne(std::int16_t row, std::string& text, std::uint8_t& rotation) const;
  void SetOne(std::int16_t row, const std::string& text, std::int16_t rotation);

  /// Reads the row from the Coder. A failure leaves it as it was.
  void GetOneRds(std::int16_t row);
  void SetOneRds(std::int16_t row) const;

  /// Loads the list from the file, from nothing, in the size that the Coder or the file says.
  void GetIni();
  void SetIni() const;

 private:
  struct Row {
    std::string data = std::string(kRtCharacters, ' ');
    std::uint8_t rotation_time = 0;
  };
  [[nodiscard]] const Row& At(std::int16_t row) const {
    return rows_.at(static_cast<std::size_t>(row));
  }
  [[nodiscard]] Row& At(std::int16_t row) { return rows_.at(static_cast<std::size_t>(row)); }

  ListSize size_;
  std::vector<Row> rows_;
};

/// The texts; null before `MainForm` has created them.
extern RtData* rtData;

}  // namespace corvalis
