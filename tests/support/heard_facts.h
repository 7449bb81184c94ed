#pragma once

#include <set>
#include <string>

#include "air/reception.h"

namespace corvalis::test {

/// Everything that a radio takes for heard, a text for each thing: "PI 5201", "PS LAKE FM ". Of the
/// time only its offset.
[[nodiscard]] std::set<std::string> HeardFacts(const air::Reception& heard);

}  // namespace corvalis::test
