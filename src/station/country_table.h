#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace corvalis {

/// A country, or a numbered region of one, with its codes by the RDS standard.
struct CountryRecord {
  std::string_view name;
  std::uint8_t country = 0;  ///< PI country code, 1 to 15
  std::uint8_t ecc = 0;      ///< Extended Country Code
};

inline constexpr int kCountries = 267;

/// "None" in the tables of rows and lines.
inline constexpr std::uint16_t kNoRow = 65535;

/// The countries in their fixed order, which decides who wins where two share a key. From the ECC
/// assignments of the RDS standard, with the United States, its territories, Canada and Mexico
/// split into numbered rows.
[[nodiscard]] std::span<const CountryRecord, kCountries> Countries();

/// Each PI country code owns so many consecutive keys, one for each group of ECC values; together
/// they are the countries that share the first digit of the PI.
inline constexpr int kKeysPerCountryCode = 20;

/// The key that joins a PI country code and an ECC: 0 to 299 for the codes 1 to 15.
[[nodiscard]] int CountryKey(int country, int ecc);

/// The country table by name and by key.
class CountryIndex {
 public:
  CountryIndex();

  /// The row of a line of the list by name, 0 to 266; `std::out_of_range` outside.
  [[nodiscard]] int RowOfLine(int line) const;

  /// The row that won a key: the last in table order of those that share it. `kNoRow` where there
  /// is none, and for a key outside 0 to 300.
  [[nodiscard]] std::uint16_t RowOfKey(int key) const;
  /// The line that won a key: the last by name of those that share it. `kNoRow` likewise.
  [[nodiscard]] std::uint16_t LineOfKey(int key) const;

 private:
  static constexpr int kKeys = 301;
  using KeyTable = std::array<std::uint16_t, kKeys>;

  [[nodiscard]] static std::uint16_t Lookup(const KeyTable& table, int key);

  std::array<int, kCountries> sort_order_{};  // by name, by character code
  KeyTable row_of_key_{};
  KeyTable line_of_key_{};
};

}  // namespace corvalis
