#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvalis {

/// One programme service name of a list: always 8 characters, cut or filled with blanks. On the
/// line a row that is not active travels with rotation time 0.
struct PsnRow {
  std::string data = std::string(8, ' ');
  bool active = false;
  std::uint8_t rotation_time = 0;  ///< in the Coder's own units
};

/// What the file holds of a row: that of a page, by its number and the row's. A missing key gives a
/// row as it is when new; a field that can't be converted leaves that of a new row.
[[nodiscard]] PsnRow LoadPsnRow(int page, int row);
void StorePsnRow(int page, int row, const PsnRow& value);

/// The section of the rows, of their counts and of the scrolling text.
inline constexpr const char* kPsnSection = "PSN Pages";

/// The rows that a scrolling text fills, and the rotation time that it gives them.
struct PsnScroll {
  std::uint8_t from = 10;
  std::uint8_t to = 49;
  std::uint8_t time = 3;

  /// From the file. A missing key gives the values above; a nonsense one leaves the field.
  void Load();
  void Store() const;
};

}  // namespace corvalis
