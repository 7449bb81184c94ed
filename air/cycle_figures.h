#pragma once

#include <cstddef>
#include <string>

#include "air/station_facts.h"

namespace corvalis::air {

/// How long things take in a cycle of groups, as the sequence has it: each enabled group so many
/// places, 4A's among them.
struct CycleFigures {
  int places = 0;
  double name_seconds = 0;  ///< a whole name: four segments in 0A and 0B; 0: there is none
  double text_seconds = 0;  ///< a radio text of `text_length` characters; 0: there is none
  int text_length = 64;     ///< 32 if 2B alone carries it
};
[[nodiscard]] CycleFigures FiguresOf(const StationFacts& facts);
/// "19 places in the cycle, a whole name every 1.7 s, a radio text of 64 characters in 8.9 s".
[[nodiscard]] std::string Words(const CycleFigures& figures);

/// What so many groups take that have the places of this kind; 0 if it has none.
[[nodiscard]] double SecondsOf(const StationFacts& facts, int groups, int kind);
/// What a whole name takes; 0: there is none.
[[nodiscard]] double NameSeconds(const StationFacts& facts);
/// What a radio text of so many characters takes, in 2A if that is on, else in 2B; 0: there is
/// none.
[[nodiscard]] double TextSeconds(const StationFacts& facts, std::size_t length);

}  // namespace corvalis::air
