#include "coder/memory_text.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "coder/commands.h"
#include "coder/describe.h"
#include "coder/digits.h"

namespace corvalis::coder {

namespace {

constexpr std::string_view kBegin = "memory";
constexpr std::string_view kEnd = "end of memory";
constexpr std::string_view kId = "ID \"";
constexpr std::string_view kIdBytes = ", bytes ";
constexpr std::size_t kIdLength = 5;

struct Line {
  std::size_t number;  // from 1
  std::string_view text;
};

struct Item {
  const Command* command;
  int number;
};

std::string Wrong(std::size_t line, std::string_view what) {
  return "line " + std::to_string(line) + ": " + std::string(what);
}

// The bytes that `text` begins with, two digits each with a blank between; nullopt if it begins
// with none. What is behind them is left in `text`.
std::optional<Bytes> TakeBytes(std::string_view& text) {
  Bytes bytes;
  while (text.size() >= 2) {
    std::uint8_t byte = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + 2, byte, 16);
    if (error != std::errc() || end != text.data() + 2) break;
    bytes.push_back(byte);
    text.remove_prefix(2);
    if (text.size() < 2 || text[0] != ' ' || text[1] == ' ' || text[1] == '(') break;
    text.remove_prefix(1);
  }
  return bytes.empty() ? std::nullopt : std::optional(bytes);
}

// The lines of the last memory in a text, without the first and the last; or what is wrong.
std::string FindMemory(std::string_view text, std::vector<Line>& lines) {
  std::size_t number = 0;
  bool inside = false;
  bool found = false;
  while (!text.empty()) {
    ++number;
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line == kBegin) {
      inside = found = true;
      lines.clear();
    } else if (line == kEnd) {
      inside = false;
    } else if (inside) {
      lines.push_back({number, line});
    }
  }
  if (!found)
    return Wrong(std::max<std::size_t>(number, 1), "there is no line \"memory\" up to here");
  if (inside) return Wrong(number, "the memory is cut: no line \"end of memory\" follows");
  return {};
}

std::optional<std::string> IdOf(std::string_view line) {
  const std::size_t bytes_at = line.find(kIdBytes);
  if (bytes_at != std::string_view::npos) {
    line.remove_prefix(bytes_at + kIdBytes.size());
    const auto bytes = TakeBytes(line);
    if (!bytes || bytes->size() != kIdLength) return std::nullopt;
    return std::string(bytes->begin(), bytes->end());
  }
  if (line.size() <= kId.size() + kIdLength || line[kId.size() + kIdLength] != '"') {
    return std::nullopt;
  }
  return std::string(line.substr(kId.size(), kIdLength));
}

// What a line about an item says: its name, and behind ": " the bytes and the words.
struct Told {
  std::string_view name;
  Bytes bytes;
  bool written;
};

std::optional<Told> ReadLine(std::string_view line) {
  const std::size_t colon = line.find(": ");
  if (colon == std::string_view::npos) return std::nullopt;
  std::string_view rest = line.substr(colon + 2);
  auto bytes = TakeBytes(rest);
  if (!bytes || (!rest.empty() && rest.front() != ' ')) return std::nullopt;
  const std::string_view words = rest.substr(0, rest.find(")  \""));
  return Told{line.substr(0, colon), std::move(*bytes), !words.ends_with(kNeverWritten)};
}

std::map<std::string, Item, std::less<>> ItemsByName(const Counts& sizes) {
  std::map<std::string, Item, std::less<>> items;
  ForEachItem(sizes, [&items](const Command& command, int number) {
    items[ItemName(command, number)] = {&command, number};
  });
  return items;
}

std::string TakesOther(std::size_t line, const Told& told) {
  return Wrong(line, "\"" + std::string(told.name) + "\" does not take these bytes");
}

// As if the bytes had been sent for this item.
bool Fits(const Item& item, const Bytes& bytes, const Counts& sizes) {
  const Command& command = *item.command;
  const auto index = static_cast<std::uint8_t>(command.Marked() ? 1 : item.number % kPageStep);
  return bytes.size() == command.body_bytes && command.Judge(bytes, false, sizes) == 0 &&
         command.Number(index, bytes) == item.number;
}

}  // namespace

std::string MemoryText(const Coder& coder) {
  const Bytes id(coder.Id().begin(), coder.Id().end());
  const std::string shown = Printable(id);
  return std::string(kBegin) + "\n" + std::string(kId) + shown + "\" " +
         (coder.Addressed() ? "" : "not ") + "addressed" +
         (shown == coder.Id() ? std::string() : std::string(kIdBytes) + HexText(id)) + "\n" +
         Dump(coder) + std::string(kEnd) + "\n";
}

std::string ReadMemory(std::string_view text, Coder& coder) {
  std::vector<Line> lines;
  if (std::string wrong = FindMemory(text, lines); !wrong.empty()) return wrong;

  std::string id = coder.Id();
  std::vector<std::pair<std::size_t, Told>> told;
  // The sizes stand between the items that they allow.
  Counts sizes;
  const auto counts = ItemsByName(sizes);
  for (const Line& line : lines) {
    if (line.text.starts_with(kId)) {
      const auto read = IdOf(line.text);
      if (!read) return Wrong(line.number, "an ID has 5 characters between quotation marks");
      id = *read;
      continue;
    }
    auto read = ReadLine(line.text);
    if (!read) {
      return Wrong(line.number,
                   "no name, place and bytes of an item (such as \"PI 00: 35 32 30 31\")");
    }
    const auto count = counts.find(read->name);
    if (count == counts.end() || count->second.command->tells == nullptr) {
      told.emplace_back(line.number, std::move(*read));
      continue;
    }
    const Command& command = *count->second.command;
    const bool digits = std::ranges::all_of(read->bytes, [](std::uint8_t byte) {
      return std::string_view("0123456789ABCDEF").find(static_cast<char>(byte)) !=
             std::string_view::npos;
    });
    if (!digits || read->bytes.size() != command.body_bytes) return TakesOther(line.number, *read);
    sizes.*command.tells = HexAt(read->bytes, 0, command.body_bytes);
  }

  const auto items = ItemsByName(sizes);
  for (const auto& [line, item] : told) {
    const auto found = items.find(item.name);
    if (found == items.end()) {
      return Wrong(line, "a Coder of these sizes has no \"" + std::string(item.name) + "\"");
    }
    if (!Fits(found->second, item.bytes, sizes)) return TakesOther(line, item);
  }
  coder.SetId(id);
  coder.SetSizes(sizes);
  for (const auto& [line, item] : told) {
    const Item& of = items.find(item.name)->second;
    if (item.written) coder.SetItem(of.command->code, of.number, item.bytes);
  }
  return {};
}

}  // namespace corvalis::coder
