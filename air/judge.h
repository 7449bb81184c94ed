#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "air/cycle_figures.h"
#include "air/station_facts.h"

namespace corvalis::air {

/// Something that is right by the standard, or that the Coder takes, and that radios make less of
/// than whoever prepared it expects.
struct Finding {
  std::string item;
  std::string_view reason;  ///< one of `Reasons()`
  std::string figures;      ///< values without words, such as "101.325 MHz"; may be empty
};
/// "AF 00: some radios drop a list ... (101.325 MHz)".
[[nodiscard]] std::string Words(const Finding& finding);

/// What radios will not make of a station: rule by rule in the order of the table, nothing if all
/// is well.
[[nodiscard]] std::vector<Finding> Judge(const StationFacts& facts);

/// The reasons of all rules, in the order of the table.
[[nodiscard]] std::vector<std::string_view> Reasons();

}  // namespace corvalis::air
