#include "radio/rotation.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>

#include "radio/values.h"
#include "station/groups_data.h"

namespace corvalis::radio {

namespace {

constexpr double kAlike = 0.5;

struct Turn {
  const Entry* entry = nullptr;
  const Value* heard = nullptr;  // the one that is set beside it
  bool agrees = false;
};

// "0" stands for a digit.
bool HasForm(std::string_view text, std::string_view form) {
  return std::ranges::equal(text, form, [](char character, char wanted) {
    return wanted == '0' ? character >= '0' && character <= '9' : character == wanted;
  });
}

bool Matches(const Entry& entry, const Value& heard) {
  if (std::ranges::find(entry.values, heard) != entry.values.end()) return true;
  if (entry.shows == Prepared::Shows::kDate) return HasForm(heard.key, "00.00.00");
  return entry.shows == Prepared::Shows::kHour && HasForm(heard.key, "00:00   ");
}

// The page of names that more has come of than of any other; the first of equals.
int PageOnAir(const std::vector<Turn>& turns) {
  std::map<int, int> matches;
  for (const Turn& turn : turns) matches[turn.entry->index] += turn.agrees ? 1 : 0;
  const auto most = std::ranges::max_element(matches, {}, [](const auto& m) { return m.second; });
  return most == matches.end() ? 0 : most->first;
}

// Sets what came beside what it is most like, the most alike first.
void Pair(std::vector<Turn>& turns, int page, std::vector<const Value*>& left) {
  while (true) {
    double best = kAlike;
    Turn* of = nullptr;
    std::size_t with = 0;
    for (Turn& turn : turns) {
      if (turn.agrees || turn.heard != nullptr || turn.entry->index != page) continue;
      for (std::size_t i = 0; i < left.size(); ++i) {
        const double alike = Likeness(turn.entry->values.front().key, left[i]->key);
        if (alike < best || (of != nullptr && alike == best)) continue;
        best = alike;
        of = &turn;
        with = i;
      }
    }
    if (of == nullptr) return;
    of->heard = left[with];
    left.erase(left.begin() + static_cast<std::ptrdiff_t>(with));
  }
}

Row RowOf(const Turn& turn, int page, const Prepared& prepared) {
  const Entry& entry = *turn.entry;
  const Value& value = entry.values.front();
  Row row{.item = entry.item, .name = NameOf(entry), .prepared = value.shown};
  if (turn.heard != nullptr) row.heard = turn.heard->shown;
  if (turn.agrees) {
    row.verdict = Verdict::kAgrees;
  } else if (turn.heard != nullptr) {
    row.verdict = Verdict::kDiffers;
    const Marks marks = IsText(entry.item) ? MarksOfBytes(value.key, turn.heard->key)
                                           : MarksOf(value.shown, turn.heard->shown);
    row.prepared_marks = marks.first;
    row.heard_marks = marks.second;
  } else {
    row.remark = WhySilent(entry, prepared);
    if (row.remark.empty() && entry.index != page) row.remark = InWords("page not on the air");
    row.verdict = row.remark.empty() ? Verdict::kNotHeard : Verdict::kSilent;
  }
  return row;
}

}  // namespace

std::string WhySilent(const Entry& entry, const Prepared& prepared) {
  std::string off;
  for (const int group : entry.carriers) {
    if (prepared.On(group)) return {};
    off += (off.empty() ? "" : ", ") + GroupName(group);
  }
  return off.empty() ? off : InWords("%1 off", {off});
}

std::vector<Row> CompareTurns(Item item, const std::vector<Entry>& entries,
                              const std::vector<Value>& heard, const Prepared& prepared) {
  std::vector<Turn> turns;
  std::vector<bool> taken(heard.size());
  for (const Entry& entry : entries) {
    Turn turn{.entry = &entry};
    for (std::size_t i = 0; i < heard.size(); ++i) {
      if (!Matches(entry, heard[i])) continue;
      taken[i] = true;
      turn.agrees = true;
      turn.heard = &heard[i];
    }
    turns.push_back(turn);
  }
  std::vector<const Value*> left;
  for (std::size_t i = 0; i < heard.size(); ++i) {
    if (!taken[i]) left.push_back(&heard[i]);
  }
  const int page = PageOnAir(turns);
  Pair(turns, page, left);

  std::vector<Row> rows;
  rows.reserve(turns.size() + left.size());
  for (const Turn& turn : turns) rows.push_back(RowOf(turn, page, prepared));
  for (const Value* value : left) {
    rows.push_back({.item = item,
                    .name = KindOf(item),
                    .heard = value->shown,
                    .verdict = Verdict::kNotPrepared});
  }
  return rows;
}

}  // namespace corvalis::radio
