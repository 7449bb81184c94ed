#pragma once

#include "air/station_facts.h"
#include "radio/prepared.h"

namespace corvalis::radio {

/// The facts of a station file, for `air::Judge`. Without a group sequence every group counts as on
/// once.
[[nodiscard]] air::StationFacts FactsOf(const Prepared& prepared);

}  // namespace corvalis::radio
