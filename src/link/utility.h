#pragma once

#include <string_view>

#include "config/conversions.h"
#include "screen/grid.h"
#include "screen/window.h"

namespace corvalis {

/// A key struck in a number box that takes a frequency. Returns the key to use, and writes it back
/// to `key`: back space, a digit while the text is shorter than `max_length` or something is
/// selected, and "." (also for ",") if `point_allowed` and the text holds no point, or the point
/// lies in the selection. Any other key beeps and becomes 0.
int FrequencyKeyFilter(std::string_view text, int& key, int max_length, int sel_length,
                       int sel_start, bool point_allowed);

/// Refuses a struck key: a beep, and `key` becomes 0.
void RefuseKey(int& key);

/// Tells the operator that what stands in a box of `screen` is none of its values.
void WarnNotAllowed(const Window& screen);

/// Makes a grid store the row being edited, before its contents are sent. What a rule refuses is
/// not stored.
void CommitGridRow(Grid& grid);

/// Tells the operator that a one-way link needs the Coder to be addressed first.
void WarnBeforeAddress();

}  // namespace corvalis
