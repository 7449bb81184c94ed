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

// When everything else of a list came so often, what never came is not on the air; unless so many
// blocks are missing that the same end of a list may be lost each time.
constexpr std::uint32_t kOftenEnough = 8;
constexpr double kMissingPercent = 3;

bool IsList(Item item) {
  return item == Item::kFrequencies || item == Item::kNetworkFrequencies ||
         item == Item::kNetworkPairs || item == Item::kChannel;
}

// The programme item that is to be on. About the edge of a minute the one before or behind may
// still, or already, be it; without a clock on the air nobody knows which one it is.
int ExpectedItem(const Prepared& prepared, const air::Reception& heard, DateTime now) {
  const int came = heard.item.IsHeard() ? air::WordOf(heard.item.value) : 0;
  if (!heard.clock.IsHeard()) {
    const bool is_one = std::ranges::find(prepared.items, came, &Prepared::ProgrammeItem::code) !=
                        prepared.items.end();
    if (heard.item.IsHeard() && (is_one || came == 0)) return came;
    return prepared.ItemAt(std::chrono::floor<std::chrono::minutes>(now));
  }
  const auto since = std::chrono::duration<double>(heard.item.last - heard.clock.last);
  const LocalMinute local =
      heard.clock.value.Local() + std::chrono::floor<std::chrono::minutes>(since);
  for (const int minutes : {-1, 1}) {
    const int near = prepared.ItemAt(local + std::chrono::minutes(minutes));
    if (heard.item.IsHeard() && near == came) return near;
  }
  return prepared.ItemAt(local);
}

Entries Expected(const Prepared& prepared, const air::Reception& heard, DateTime now) {
  return EntriesOf(prepared, {.item = ExpectedItem(prepared, heard, now),
                              .pty = heard.pty.IsHeard() ? heard.pty.value : prepared.pty});
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

void CompareLists(const Entry& entry, const Entry& heard, bool came_clear, Row& row) {
  const Lacking missing = LackingIn(heard, entry);
  const Lacking more = LackingIn(entry, heard);
  if (!missing.shown.empty()) row.remark = InWords("without %1", {missing.shown});
  if (!more.shown.empty()) {
    row.remark += (row.remark.empty() ? "" : "; ") + InWords("beside it %1", {more.shown});
  }
  if (missing.shown.empty() && more.shown.empty()) {
    row.verdict = Verdict::kAgrees;
  } else if (more.shown.empty() && (heard.times < kOftenEnough || !came_clear)) {
    row.verdict = Verdict::kNotHeard;
  } else {
    row.verdict = Verdict::kDiffers;
    row.prepared_marks = missing.marks;
    row.heard_marks = more.marks;
  }
}

Row CompareOne(const Entry& entry, const Entry* heard, const Prepared& prepared, bool came_clear) {
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
    CompareLists(entry, *heard, came_clear, row);
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

  const air::GroupCounts& counts = from > 0 ? heard.groups.last_minute : heard.groups.all;
  const bool came_clear = counts.MissingPercent() < kMissingPercent;
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
    if (one != nullptr || !unknown) rows.push_back(CompareOne(entry, one, prepared, came_clear));
  }
  for (const Item item : {Item::kName, Item::kText, Item::kSubchannel, Item::kTrafficMessage}) {
    AppendTurns(item, expected, came, prepared, rows);
  }
  AppendUnprepared(expected, came, rows);
  Append(rows, CompareGroups(prepared, counts));
  std::ranges::stable_sort(rows, {}, FamilyOf);
  return rows;
}

}  // namespace corvalis::radio
