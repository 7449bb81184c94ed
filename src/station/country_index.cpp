#include <algorithm>
#include <numeric>

#include "station/country_table.h"

namespace corvalis {

namespace {

// The groups of ECC values, by the first digit: where they begin, how many bits tell the members
// apart and at which place of a country code's keys they start.
int EccGroup(int ecc) {
  if (ecc >= 0xA0 && ecc <= 0xA6) return ecc & 7;
  if (ecc >= 0xD0 && ecc <= 0xD3) return (ecc & 3) + 7;
  if (ecc >= 0xE0 && ecc <= 0xE4) return (ecc & 7) + 11;
  if (ecc >= 0xF0 && ecc <= 0xF3) return (ecc & 3) + 16;
  return 0;
}

const CountryRecord& Row(int row) { return Countries()[static_cast<std::size_t>(row)]; }

}  // namespace

int CountryKey(int country, int ecc) { return (country - 1) * kKeysPerCountryCode + EccGroup(ecc); }

CountryIndex::CountryIndex() {
  std::iota(sort_order_.begin(), sort_order_.end(), 0);
  // No two names are equal, so any sort gives the one order.
  std::sort(sort_order_.begin(), sort_order_.end(),
            [](int a, int b) { return Row(a).name < Row(b).name; });
  row_of_key_.fill(kNoRow);
  line_of_key_.fill(kNoRow);
  const auto enter = [](KeyTable& table, const CountryRecord& country, int value) {
    table[static_cast<std::size_t>(CountryKey(country.country, country.ecc))] =
        static_cast<std::uint16_t>(value);
  };
  for (int row = 0; row < kCountries; ++row) enter(row_of_key_, Row(row), row);
  for (int line = 0; line < kCountries; ++line) enter(line_of_key_, Row(RowOfLine(line)), line);
}

int CountryIndex::RowOfLine(int line) const {
  return sort_order_.at(static_cast<std::size_t>(line));
}

std::uint16_t CountryIndex::RowOfKey(int key) const { return Lookup(row_of_key_, key); }

std::uint16_t CountryIndex::LineOfKey(int key) const { return Lookup(line_of_key_, key); }

std::uint16_t CountryIndex::Lookup(const KeyTable& table, int key) {
  if (key < 0 || key >= kKeys) return kNoRow;
  return table[static_cast<std::size_t>(key)];
}

}  // namespace corvalis
