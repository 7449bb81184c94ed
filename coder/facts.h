#pragma once

#include "air/station_facts.h"
#include "coder/coder.h"

namespace corvalis::coder {

/// What a Coder has been given for the air. Items are called as in the memory's words; those of
/// which there is one, as their command.
[[nodiscard]] air::StationFacts FactsOf(const Coder& coder);

}  // namespace corvalis::coder
