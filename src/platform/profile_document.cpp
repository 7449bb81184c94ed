#include "platform/profile_document.h"

#include <algorithm>
#include <utility>

namespace corvalis {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view TrimFront(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

std::string_view Trim(std::string_view text) {
  text = TrimFront(text);
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

void AppendFolded(std::string& to, std::string_view name) {
  for (const char c : Trim(name)) {
    to += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
}

std::string FoldedSection(std::string_view section) {
  std::string folded;
  AppendFolded(folded, section);
  return folded;
}

// No name in a text holds a line feed, so it can separate the two.
std::string FoldedKey(std::string_view section, std::string_view key) {
  std::string folded;
  folded.reserve(section.size() + key.size() + 1);
  AppendFolded(folded, section);
  folded += '\n';
  AppendFolded(folded, key);
  return folded;
}

std::optional<std::string_view> SectionName(std::string_view line) {
  line = TrimFront(line);
  const std::size_t end = line.find(']');
  if (line.empty() || line.front() != '[' || end == std::string_view::npos) return std::nullopt;
  return line.substr(1, end - 1);
}

bool IsComment(std::string_view line) { return TrimFront(line).starts_with(';'); }

}  // namespace

void ProfileDocument::Parse(std::string text) {
  text_ = std::move(text);
  values_.clear();
  keys_.clear();
  sections_.clear();
  const std::string_view all = text_;
  std::string_view section;
  std::size_t* insert_at = nullptr;  // null outside the sections that count
  for (std::size_t at = all.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
       at < all.size();) {
    const std::size_t feed = std::min(all.find('\n', at), all.size());
    const std::size_t next = std::min(feed + 1, all.size());
    std::string_view line = all.substr(at, feed - at);
    line = line.substr(0, line.find_last_not_of('\r') + 1);
    if (const auto name = SectionName(line)) {
      section = *name;
      const auto [entry, first] = sections_.try_emplace(FoldedSection(section), next);
      insert_at = first ? &entry->second : nullptr;
    } else if (insert_at != nullptr && !Trim(line).empty()) {
      *insert_at = next;
      const std::size_t equals = line.find('=');
      if (equals != std::string_view::npos && !IsComment(line)) {
        const auto [entry, first] =
            keys_.try_emplace(FoldedKey(section, line.substr(0, equals)), values_.size());
        if (first) values_.push_back({at + equals + 1, at + line.size()});
      }
    }
    at = next;
  }
}

std::optional<std::string_view> ProfileDocument::Value(std::string_view section,
                                                       std::string_view key) const {
  const auto found = keys_.find(FoldedKey(section, key));
  if (found == keys_.end()) return std::nullopt;
  const Span span = values_[found->second];
  return Trim(std::string_view(text_).substr(span.from, span.to - span.from));
}

ProfileDocument::Range ProfileDocument::Set(std::string_view section, std::string_view key,
                                            std::string_view value) {
  value = Trim(value.substr(0, value.find_first_of("\r\n")));
  const auto [entry, is_new] = keys_.try_emplace(FoldedKey(section, key), values_.size());
  if (!is_new) {
    const std::size_t id = entry->second;
    const auto [from, to] = values_[id];
    if (std::string_view(text_).substr(from, to - from) == value) return {};
    const std::size_t end = Replace(from, to, value);
    values_[id] = {from, end};
    return {from, end == to ? end : Range::kEnd};
  }

  const auto [place, new_section] = sections_.try_emplace(FoldedSection(section), text_.size());
  const std::size_t from = place->second;
  const std::string_view line_end = LineEndAt(from);
  const bool line_open = from > 0 && text_[from - 1] != '\n' && text_ != kByteOrderMark;
  const std::size_t at = line_open ? Replace(from, from, line_end) : from;
  std::string lines;
  if (new_section) lines.append("[").append(Trim(section)).append("]").append(line_end);
  lines.append(Trim(key)).append("=");
  const std::size_t value_at = at + lines.size();
  lines.append(value).append(line_end);
  place->second = Replace(at, at, lines);
  values_.push_back({value_at, value_at + value.size()});
  return {from, Range::kEnd};
}

bool ProfileDocument::CanHold(std::string_view section, std::string_view key) {
  key = Trim(key);
  return section.find_first_of("\r\n]") == std::string_view::npos &&
         key.find_first_of("\r\n=") == std::string_view::npos && !key.empty() &&
         key.front() != '[' && key.front() != ';';
}

/// Puts `by` where `from` to `to` stood, moves the index along, and returns the end of the new
/// bytes. The places of what is replaced itself are the caller's to set.
std::size_t ProfileDocument::Replace(std::size_t from, std::size_t to, std::string_view by) {
  const bool last = to == text_.size();
  // A section that ends where new lines go in doesn't own them; one that ends in a line does.
  const std::size_t first_moved = from == 0 || text_[from - 1] == '\n' ? to + 1 : to;
  text_.replace(from, to - from, by);
  const std::size_t end = from + by.size();
  if (end == to) return end;
  for (auto& [name, insert_at] : sections_) {
    if (insert_at >= first_moved) insert_at = insert_at - to + end;
  }
  // At the end of the text no key follows: a file that is written in order costs the same each key.
  if (last) return end;
  for (Span& value : values_) {
    if (value.from < to) continue;
    value.from = value.from - to + end;
    value.to = value.to - to + end;
  }
  return end;
}

/// The line end for a line that begins at `at`: that of the line before it, else that of the first
/// line, else CR LF.
std::string_view ProfileDocument::LineEndAt(std::size_t at) const {
  const std::size_t feed = at > 0 && text_[at - 1] == '\n' ? at - 1 : text_.find('\n');
  if (feed == std::string::npos) return "\r\n";
  return feed > 0 && text_[feed - 1] == '\r' ? "\r\n" : "\n";
}

}  // namespace corvalis
