#pragma once

#include <vector>

#include "air/reception.h"
#include "radio/entry.h"
#include "radio/prepared.h"

namespace corvalis::radio {

/// Which of several prepared things is on the air at a moment.
struct Moment {
  int item = 0;  ///< the code of the programme item; 0: none
  int pty = 0;   ///< whose name is told
};

/// Everything that a station file puts on the air at a moment but the group sequence, kind by kind.
[[nodiscard]] std::vector<Entry> EntriesOf(const Prepared& prepared, const Moment& at);

/// Everything that a radio has heard, kind by kind, without the share of the groups. Networks and
/// lists are numbered as they came; all that takes turns of one kind is one entry. What came last
/// before `from` does not count.
[[nodiscard]] std::vector<Entry> EntriesOf(const air::Reception& heard, air::AirSeconds from = 0);

}  // namespace corvalis::radio
