#pragma once

#include <vector>

#include "air/reception.h"
#include "radio/entry.h"
#include "radio/prepared.h"

namespace corvalis::radio {

/// What decides of several prepared things which one is on the air: the programme item goes by the
/// local time, the name of the type by the type.
struct Moment {
  air::ClockTime::LocalMinute local;
  int pty = 0;
};

/// Everything that a station file puts on the air at a moment but the group sequence, kind by kind.
[[nodiscard]] std::vector<Entry> EntriesOf(const Prepared& prepared, const Moment& at);

/// Everything that a radio has heard, kind by kind, without the share of the groups. Networks and
/// lists are numbered as they came; all that takes turns of one kind is one entry. What came last
/// before `from` does not count.
[[nodiscard]] std::vector<Entry> EntriesOf(const air::Reception& heard, air::AirSeconds from = 0);

}  // namespace corvalis::radio
