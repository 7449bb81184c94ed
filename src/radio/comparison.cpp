#include "radio/comparison.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "radio/entries.h"
#include "radio/group_rows.h"
#include "radio/renumber.h"
#include "radio/rotation.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

using LocalMinute = air::ClockTime::LocalMinute;
using Entries = std::vector<Entry>;

// When everything else of a list came so often, what never came is not on the air.
constexpr std::uint32_t kOftenEnough = 8;

bool IsList(Item item) {
  return item == Item::kFrequencies || item == Item::kNetworkFrequencies ||
         item == Item::kNetworkPairs || item == Item::kChannel;
}

// Local time by the station's own clock when something came, else by this machine's.
LocalMinute LocalAt(const air::Reception& heard, air::AirSeconds when, DateTime now) {
  if (!heard.clock.IsHeard()) return std::chrono::floor<std::chrono::minutes>(now);
  const auto since = std::chrono::duration<double>(when - heard.clock.last);
  return heard.clock.value.Local() + std::chrono::floor<std::chrono::minutes>(since);
}

// The entries of a station file at the moment when an item number came. About the edge of a minute
// the item before or the one behind may still, or already, be on.
Entries Expected(const Prepared& prepared, const air::Reception& heard, DateTime now) {
  const LocalMinute local = LocalAt(heard, heard.item.last, now);
  const int pty = heard.pty.IsHeard() ? heard.pty.value : prepared.pty;
  for (const int minutes : {0, -1, 1}) {
    const LocalMinute near = local + std::chrono::minutes(minutes);
    if (heard.item.IsHeard() && prepared.ItemAt(near) == air::WordOf(heard.item.value)) {
      return EntriesOf(prepared, {near, pty});
    }
  }
  return EntriesOf(prepared, {local, pty});
}

// A value that stands for nothing at all.
bool SaysNothing(const Entry& heard) {
  const std::string& key = heard.values.front().key;
  switch (heard.item) {
    case Item::kEcc:
    case Item::kLanguage:
      return key.starts_with("00");
    case Item::kProgrammeItem:
      return key.starts_with("0000");
    case Item::kLinked:
      return key == "0";
    default:
      return false;
  }
}

// The values of `entry` that `other` lacks, and where they stand among those that are shown.
struct Lacking {
  std::string shown;
  std::vector<Span> marks;
};
Lacking LackingIn(const Entry& other, const Entry& entry) {
  Lacking lacking;
  std::size_t at = 0;
  for (const Value& value : entry.values) {
    const std::size_t length = Characters(value.shown);
    if (std::ranges::find(other.values, value) == other.values.end()) {
      lacking.shown += (lacking.shown.empty() ? "" : ", ") + value.shown;
      lacking.marks.push_back({at, length});
    }
    at += length + 2;
  }
  return lacking;
}

void CompareLists(const Entry& entry, const Entry& heard, Row& row) {
  const Lacking missing = LackingIn(heard, entry);
  const Lacking more = LackingIn(entry, heard);
  if (!missing.shown.empty()) row.remark = InWords("without") + " " + missing.shown;
  if (!more.shown.empty()) {
    row.remark += (row.remark.empty() ? "" : "; ") + InWords("beside it") + " " + more.shown;
  }
  if (missing.shown.empty() && more.shown.empty()) {
    row.verdict = Verdict::kAgrees;
  } else if (more.shown.empty() && heard.times < kOftenEnough) {
    row.verdict = Verdict::kNotHeard;
  } else {
    row.verdict = Verdict::kDiffers;
    row.prepared_marks = missing.marks;
    row.heard_marks = more.marks;
  }
}

Row CompareOne(const Entry& entry, const Entry* heard, const Prepared& prepared) {
  Row row{.item = entry.item, .name = NameOf(entry), .prepared = Shown(entry)};
  if (entry.item == Item::kPage && row.prepared.empty()) {
    row.verdict = Verdict::kSilent;
    row.remark = InWords("its own file can't be read");
    if (heard != nullptr) row.heard = Shown(*heard);
    return row;
  }
  if (heard == nullptr) {
    row.remark = WhySilent(entry, prepared);
    row.verdict = row.remark.empty() ? Verdict::kNotHeard : Verdict::kSilent;
    return row;
  }
  row.heard = Shown(*heard);
  if (IsList(entry.item)) {
    CompareLists(entry, *heard, row);
    return row;
  }
  const Value& wanted = entry.values.front();
  const Value& came = heard->values.front();
  row.verdict = wanted == came ? Verdict::kAgrees : Verdict::kDiffers;
  if (row.verdict == Verdict::kDiffers) {
    const Marks marks =
        IsText(entry.item) ? MarksOfBytes(wanted.key, came.key) : MarksOf(wanted.shown, came.shown);
    row.prepared_marks = marks.first;
    row.heard_marks = marks.second;
  }
  return row;
}

Entries Of(const Entries& entries, Item item) {
  Entries of;
  std::ranges::copy_if(entries, std::back_inserter(of),
                       [item](const Entry& entry) { return entry.item == item; });
  return of;
}

void Append(std::vector<Row>& rows, std::vector<Row> more) {
  std::ranges::move(more, std::back_inserter(rows));
}

// What takes turns: all of a kind at its first entry.
void AppendTurns(Item item, const Entries& expected, const Entries& heard, const Prepared& prepared,
                 std::vector<Row>& rows) {
  const Entries came = Of(heard, item);
  Append(rows, CompareTurns(item, Of(expected, item),
                            came.empty() ? std::vector<Value>() : came.front().values, prepared));
}

// A network that nobody prepared is one row.
Row UnknownNetwork(const Entries& heard, int index) {
  Row row{.item = Item::kNetworkPi, .verdict = Verdict::kNotPrepared};
  for (const Entry& entry : heard) {
    if (entry.index != index || !IsOfNetwork(entry.item)) continue;
    if (entry.item == Item::kNetworkPi) row.name = "EON " + Shown(entry);
    if (entry.item == Item::kNetworkPi || entry.item == Item::kNetworkName) {
      row.heard += (row.heard.empty() ? "" : " ") + Shown(entry);
    }
  }
  return row;
}

void AppendUnprepared(const Entries& expected, const Entries& heard, std::vector<Row>& rows) {
  for (const Entry& entry : heard) {
    const bool known = std::ranges::any_of(expected, [&entry](const Entry& wanted) {
      return wanted.item == entry.item && wanted.index == entry.index && wanted.row == entry.row;
    });
    if (known || TakesTurns(entry.item) || SaysNothing(entry)) continue;
    if (IsOfNetwork(entry.item) && entry.index >= kUnknown) {
      if (entry.item == Item::kNetworkPi) rows.push_back(UnknownNetwork(heard, entry.index));
      continue;
    }
    Entry named = entry;
    named.index %= kUnknown;
    rows.push_back({.item = entry.item,
                    .name = NameOf(named),
                    .heard = Shown(entry),
                    .verdict = Verdict::kNotPrepared});
  }
}

Item FamilyOf(const Row& row) { return IsOfNetwork(row.item) ? Item::kNetworkPi : row.item; }

}  // namespace

std::string InWords(const Row& row) {
  switch (row.verdict) {
    case Verdict::kAgrees:
      return InWords("agrees");
    case Verdict::kDiffers:
      return InWords("differs");
    case Verdict::kNotHeard:
      return InWords("not heard yet");
    case Verdict::kNotPrepared:
      return InWords("not prepared");
    case Verdict::kSilent:
      return row.remark;
  }
  return {};
}

Outcome OutcomeOf(const std::vector<Row>& rows) {
  Outcome outcome = Outcome::kAgrees;
  for (const Row& row : rows) {
    if (row.verdict == Verdict::kDiffers || row.verdict == Verdict::kNotPrepared) {
      return Outcome::kDiffers;
    }
    if (row.verdict == Verdict::kNotHeard) outcome = Outcome::kNotHeard;
  }
  return outcome;
}

std::vector<Row> Compare(const Prepared& prepared, const air::Reception& heard, DateTime now,
                         air::AirSeconds from) {
  const Entries expected = Expected(prepared, heard, now);
  Entries came = EntriesOf(heard, from);
  Renumber(expected, came);

  std::vector<Row> rows;
  for (const Entry& entry : expected) {
    if (TakesTurns(entry.item)) continue;
    const auto found = std::ranges::find_if(came, [&entry](const Entry& candidate) {
      return candidate.item == entry.item && candidate.index == entry.index &&
             candidate.row == entry.row;
    });
    const Entry* const one = found == came.end() ? nullptr : &*found;
    // Of a page that nobody knows nothing is expected.
    const bool unknown = entry.item == Item::kPage && entry.values.front().key.empty();
    if (one != nullptr || !unknown) rows.push_back(CompareOne(entry, one, prepared));
  }
  for (const Item item : {Item::kName, Item::kText, Item::kSubchannel, Item::kTrafficMessage}) {
    AppendTurns(item, expected, came, prepared, rows);
  }
  AppendUnprepared(expected, came, rows);
  Append(rows, CompareGroups(prepared, from > 0 ? heard.groups.last_minute : heard.groups.all));
  std::ranges::stable_sort(rows, {}, FamilyOf);
  return rows;
}

}  // namespace corvalis::radio
