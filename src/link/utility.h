#pragma once

#include <string>
#include <string_view>

#include "config/conversions.h"
#include "screen/grid.h"
#include "screen/text_box.h"

namespace corvalis {

/// A key struck in a number box that takes a frequency. Returns the key to use, and writes it back
/// to `key`: back space, a digit while the text is shorter than `max_length` or something is
/// selected, and "." (also for ",") if `point_allowed` and the text holds no point, or the point
/// lies in the selection. Any other key beeps and becomes 0.
int FrequencyKeyFilter(std::string_view text, int& key, int max_length, int sel_length,
                       int sel_start, bool point_allowed);

/// Refuses a struck key: a beep, and `key` becomes 0.
void RefuseKey(int& key);

/// Refuses what stands in a box that is being left: it has the focus again, the operator is told,
/// and then `shown` stands there with all of it selected.
void RefuseBox(TextBox& box, const std::string& shown);

/// Makes a grid store the row being edited, before its contents are sent. What a rule refuses is
/// not stored.
void CommitGridRow(Grid& grid);

/// A row's name and, where the grid shows what the data does not have yet, that: a SEND that does
/// not store the row first goes out without it.
[[nodiscard]] std::string WithUntaken(const Grid& grid, const std::string& name);

/// What the current row has in a column of texts, as far as it has been typed.
[[nodiscard]] std::string TypedText(Grid& grid, int column);

/// Tells the operator that a one-way link needs the Coder to be addressed first.
void WarnBeforeAddress();

}  // namespace corvalis
