#include "radio/report.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string_view>
#include <utility>

#include "config/conversions.h"
#include "config/words.h"
#include "platform/plain_file.h"
#include "radio/entries.h"
#include "radio/values.h"

namespace corvalis::radio {

namespace {

constexpr std::size_t kWidest = 66;  // a radio text with its quotes

// What stands in a column, character by character, with what differs.
struct Cell {
  std::vector<std::string> characters;
  std::vector<bool> marked;
};

Cell CellOf(const std::string& text, const std::vector<Span>& marks, bool quoted) {
  Cell cell;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = at + 1;
    while (end < text.size() && Characters(std::string_view(text).substr(end, 1)) == 0) ++end;
    cell.characters.push_back(text.substr(at, end - at));
    at = end;
  }
  cell.marked.resize(cell.characters.size());
  for (const Span& span : marks) {
    for (std::size_t at = 0; at < span.length; ++at) cell.marked.at(span.begin + at) = true;
  }
  if (quoted) {
    cell.characters.insert(cell.characters.begin(), "\"");
    cell.characters.emplace_back("\"");
    cell.marked.insert(cell.marked.begin(), false);
    cell.marked.push_back(false);
  }
  return cell;
}

// A line of a cell that has several, or the signs below it.
std::string LineOf(const Cell& cell, std::size_t line, bool signs) {
  std::string text;
  const std::size_t end = std::min(cell.characters.size(), (line + 1) * kWidest);
  for (std::size_t at = line * kWidest; at < end; ++at) {
    text += signs ? std::string(cell.marked[at] ? "^" : " ") : cell.characters[at];
  }
  if (signs) text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string Filled(std::string text, std::size_t width) {
  text.append(width - std::min(width, Characters(text)), ' ');
  return text;
}

// The columns of a report, wide enough for all of its rows.
class Columns {
 public:
  explicit Columns(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      name_ = std::max(name_, Characters(row.name));
      verdict_ = std::max(verdict_, Characters(InWords(row)));
      const std::size_t quotes = IsText(row.item) ? 2 : 0;
      prepared_ = std::max(prepared_, std::min(kWidest, Characters(row.prepared) + quotes));
    }
  }

  void Add(const std::string& name, const std::string& verdict, const std::string& prepared,
           const std::string& heard, std::string& text) const {
    std::string line = Filled(name, name_ + 2) + Filled(verdict, verdict_ + 2) +
                       Filled(prepared, prepared_ + 2) + heard;
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }

  void Add(const Row& row, std::string& text) const {
    const auto quoted = [&row](const std::string& text, Verdict none) {
      const bool is_there =
          !text.empty() || (row.verdict != none && row.verdict != Verdict::kSilent);
      return IsText(row.item) && is_there;
    };
    const Cell prepared =
        CellOf(row.prepared, row.prepared_marks, quoted(row.prepared, Verdict::kNotPrepared));
    const Cell heard = CellOf(row.heard, row.heard_marks, quoted(row.heard, Verdict::kNotHeard));
    const std::size_t longer = std::max(prepared.characters.size(), heard.characters.size());
    for (std::size_t line = 0; line == 0 || line * kWidest < longer; ++line) {
      Add(line == 0 ? row.name : "", line == 0 ? InWords(row) : "", LineOf(prepared, line, false),
          LineOf(heard, line, false), text);
      const std::string below = LineOf(prepared, line, true);
      const std::string beside = LineOf(heard, line, true);
      if (!below.empty() || !beside.empty()) Add("", "", below, beside, text);
    }
    if (!row.remark.empty() && row.verdict != Verdict::kSilent) {
      Add("", "(" + row.remark + ")", "", "", text);
    }
  }

 private:
  std::size_t name_ = 4;
  std::size_t verdict_ = 7;
  std::size_t prepared_ = 8;
};

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string CsvField(const std::string& text) {
  std::string field = "\"";
  for (const char character : text) field += character == '"' ? "\"\"" : std::string(1, character);
  return field + '"';
}

// "6, 8-9": counted from 1.
std::string Places(const std::vector<Span>& spans) {
  std::string text;
  for (const Span& span : spans) {
    text += (text.empty() ? "" : ", ") + std::to_string(span.begin + 1);
    if (span.length > 1) text += "-" + std::to_string(span.begin + span.length);
  }
  return text;
}

}  // namespace

std::string ReportText(const std::vector<Row>& rows) {
  const Columns columns(rows);
  std::string text;
  columns.Add(InWords("Item"), InWords("Verdict"), InWords("Prepared"), InWords("Heard"), text);
  for (const Row& row : rows) columns.Add(row, text);
  return text;
}

std::string ReportCsv(const std::vector<Row>& rows) {
  std::string text = "item,verdict,prepared,heard,remark,prepared differs at,heard differs at\n";
  for (const Row& row : rows) {
    const std::array fields = {row.name,
                               InWords(row),
                               row.prepared,
                               row.heard,
                               row.verdict == Verdict::kSilent ? "" : row.remark,
                               Places(row.prepared_marks),
                               Places(row.heard_marks)};
    std::string line;
    for (const std::string& field : fields) {
      if (!line.empty()) line += ',';
      line += CsvField(field);
    }
    text += line + "\n";
  }
  return text;
}

std::string Summary(const std::vector<Row>& rows) {
  std::map<Verdict, int> counts;
  for (const Row& row : rows) ++counts[row.verdict];
  std::string text;
  for (const auto& [verdict, words] : {std::pair(Verdict::kAgrees, LaterWord("%1 agree")),
                                       {Verdict::kDiffers, LaterWord("%1 differ")},
                                       {Verdict::kNotHeard, LaterWord("%1 not heard yet")},
                                       {Verdict::kNotPrepared, LaterWord("%1 not prepared")},
                                       {Verdict::kSilent, LaterWord("%1 silent")}}) {
    if (counts[verdict] == 0) continue;
    text += (text.empty() ? "" : ", ") + InWords(words, {std::to_string(counts[verdict])});
  }
  return text.empty() ? InWords("nothing to compare") : text;
}

std::string HeardText(const air::Reception& heard) {
  std::vector<std::pair<std::string, std::string>> lines;
  for (const Entry& entry : EntriesOf(heard)) {
    const std::string name = TakesTurns(entry.item) ? KindOf(entry.item) : NameOf(entry);
    if (entry.item == Item::kClock) {
      lines.emplace_back("CT", ClockText(heard.clock.value));
    } else if (IsText(entry.item) || TakesTurns(entry.item)) {
      for (const Value& value : entry.values) {
        lines.emplace_back(name, IsText(entry.item) ? Quoted(value.shown) : value.shown);
      }
    } else {
      lines.emplace_back(name, Shown(entry));
    }
  }
  for (int group = 0; group < air::kGroupKinds; ++group) {
    const auto count = heard.groups.all.kinds.at(static_cast<std::size_t>(group));
    if (count == 0) continue;
    lines.emplace_back(
        NameOf({.item = Item::kGroup, .index = group}),
        std::to_string(count) + " (" + OneDecimal(100 * heard.groups.all.Share(group)) + " %)");
  }
  std::size_t width = 0;
  for (const auto& [name, value] : lines) width = std::max(width, Characters(name));
  std::string text;
  for (const auto& [name, value] : lines) {
    text += Filled(name, width + 2);
    text += value;
    text += '\n';
  }
  return text;
}

std::string HeardSummary(const air::Reception& heard) {
  const air::GroupCounts& all = heard.groups.all;
  return InWords("%1 groups, %2 % of the blocks missing",
                 {std::to_string(all.groups), OneDecimal(all.MissingPercent())});
}

std::string SaveReport(const std::vector<Row>& rows, const std::string& path) {
  std::error_code error;
  const std::string whole = std::filesystem::absolute(path, error);
  const bool table = UpperCase(path).ends_with(".CSV");
  if (WritePlainFile(whole, table ? ReportCsv(rows) : ReportText(rows))) return {};
  return path + ": " + InWords("the report can't be written there");
}

}  // namespace corvalis::radio
