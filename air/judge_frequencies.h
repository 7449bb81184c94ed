#pragma once

#include <optional>
#include <string>
#include <vector>

#include "air/station_facts.h"

namespace corvalis::air {

/// A list of alternative frequencies as a radio reads it.
struct ReadList {
  int counted = 0;                         ///< by its count
  int frequencies = 0;                     ///< there are
  std::optional<std::string> off_raster;   ///< the first between two steps of 100 kHz, in words
  bool first_code = false;                 ///< 87.5 MHz, whose code radios take for none
  std::optional<std::uint8_t> unassigned;  ///< the first code that means nothing
  int pairs = 0;                           ///< behind the first frequency that have it in them
  int other_pairs = 0;                     ///< that have not

  /// The first frequency comes again, so that radios read pairs.
  [[nodiscard]] bool IsMethodB() const { return pairs > 0; }
};

/// `codes` begin with a count; nothing counts behind the last that is no filler.
[[nodiscard]] ReadList Read(const StationFacts::FrequencyList& list);

}  // namespace corvalis::air
