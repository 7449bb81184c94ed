#pragma once

#include <string>
#include <vector>

class QKeyEvent;

namespace corvalis {
class ListBox;
}

namespace corvalis::desktop {

/// The entry that a key of movement (arrows, page keys, Home, End) leads to from the entry that
/// `list` has now; always an entry that exists. `ListBox::kNone` if it is another key, or if the
/// list is empty.
[[nodiscard]] int EntryByKey(const ListBox& list, const QKeyEvent& event);

/// The one entry in which two lists of equal length differ; `ListBox::kNone` if they differ in
/// more, or in their length. Such an entry is shown anew in its place, lest an open list jumps.
[[nodiscard]] int ReplacedEntry(const std::vector<std::string>& had,
                                const std::vector<std::string>& has);

}  // namespace corvalis::desktop
