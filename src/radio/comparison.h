#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "air/reception.h"
#include "platform/clock.h"
#include "radio/entry.h"
#include "radio/marks.h"
#include "radio/prepared.h"

namespace corvalis::radio {

enum class Verdict : std::uint8_t {
  kAgrees,
  kDiffers,
  kNotHeard,     ///< yet
  kNotPrepared,  ///< heard all the same
  kSilent        ///< prepared, and by the file itself not on the air now; see `Row::remark`
};

/// An item of the station file that travels, or one that was heard and is none of it. All texts are
/// UTF-8, as people read them.
struct Row {
  Item item{};
  std::string name = {};      ///< "PS 00.03"
  std::string prepared = {};  ///< empty where nothing is
  std::string heard = {};     ///< empty where nothing was
  Verdict verdict{};
  std::string remark = {};                ///< what the verdict alone does not say; may be empty
  std::vector<Span> prepared_marks = {};  ///< what differs
  std::vector<Span> heard_marks = {};     ///< what differs

  bool operator==(const Row&) const = default;
};

/// "agrees", "differs", "not heard yet", "not prepared", and for what stays silent its remark.
[[nodiscard]] std::string InWords(const Row& row);

/// What comes of all rows. The numbers are the exit codes of the program.
enum class Outcome { kAgrees = 0, kDiffers = 1, kNotHeard = 2 };
[[nodiscard]] Outcome OutcomeOf(const std::vector<Row>& rows);

/// Holds what a radio has heard against a station file, item by item in the order of `Item`. Lists
/// are compared as sets over time: a name that takes turns has a row of its own, and counts once it
/// came. Of several pages of names the one that is on the air counts.
///
/// `now` is the local time: where no clock was heard it says which programme item to wait for. What
/// came last before `from` does not count, so that a comparison can begin anew after a change. It
/// costs some 100 microseconds, so a window can have it a few times a second.
[[nodiscard]] std::vector<Row> Compare(const Prepared& prepared, const air::Reception& heard,
                                       DateTime now, air::AirSeconds from = 0);

}  // namespace corvalis::radio
