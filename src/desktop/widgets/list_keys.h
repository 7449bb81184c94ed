#pragma once

class QKeyEvent;

namespace corvalis {
class ListBox;
}

namespace corvalis::desktop {

/// The entry that a key of movement (arrows, page keys, Home, End) leads to from the entry that
/// `list` has now; always an entry that exists. `ListBox::kNone` if it is another key, or if the
/// list is empty.
[[nodiscard]] int EntryByKey(const ListBox& list, const QKeyEvent& event);

}  // namespace corvalis::desktop
