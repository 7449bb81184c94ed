#pragma once

#include <vector>

#include "air/reception.h"
#include "radio/comparison.h"
#include "radio/prepared.h"

namespace corvalis::radio {

/// Holds how often each group came against the group sequence, a row for each group that takes
/// turns or that came without being on; no rows without a sequence. How often is told as
/// repetitions in a cycle. A group that is on and has nothing to say passes its places to 0A, and
/// has no row.
[[nodiscard]] std::vector<Row> CompareGroups(const Prepared& prepared,
                                             const air::GroupCounts& heard);

}  // namespace corvalis::radio
