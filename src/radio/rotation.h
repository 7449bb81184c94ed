#pragma once

#include <vector>

#include "radio/comparison.h"
#include "radio/entry.h"

namespace corvalis::radio {

/// Why a prepared entry stays silent by the file's own group sequence: "2A, 2B off"; empty if it
/// does not.
[[nodiscard]] std::string WhySilent(const Entry& entry, const Prepared& prepared);

/// Rows of things that take turns, all of one kind: `heard` is every one of them that came. One
/// that was prepared agrees once it came; what came otherwise is set beside the one that it is most
/// like, or has a row of its own.
[[nodiscard]] std::vector<Row> CompareTurns(Item item, const std::vector<Entry>& entries,
                                            const std::vector<Value>& heard,
                                            const Prepared& prepared);

}  // namespace corvalis::radio
