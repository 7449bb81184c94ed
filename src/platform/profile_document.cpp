#include "platform/profile_document.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvalis {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view TrimBack(std::string_view text) {
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

std::string_view Trim(std::string_view text) {
  return TrimBack(text.substr(std::min(text.find_first_not_of(" \t"), text.size())));
}

std::string_view NameOf(std::string_view line) { return line.substr(0, line.find('=')); }

std::optional<std::string_view> SectionName(std::string_view line) {
  line = Trim(line);
  const std::size_t end = line.rfind(']');
  if (line.empty() || line.front() != '[' || end == std::string_view::npos) return std::nullopt;
  return line.substr(1, end - 1);
}

/// The first line of `text` without its end.
std::string_view FirstLine(std::string_view text) {
  text = text.substr(0, text.find('\n'));
  return text.substr(0, text.find_last_not_of('\r') + 1);
}

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// What stands behind the "=" of a key's line.
std::string_view ValueOf(std::string_view line) {
  line = FirstLine(line);
  return WithoutQuotes(Trim(line.substr(std::min(NameOf(line).size() + 1, line.size()))));
}

}  // namespace

std::string ProfileDocument::Folded(std::string_view name) {
  std::string folded(Trim(name));
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

void ProfileDocument::Parse(std::string_view text) {
  pieces_.clear();
  sections_.clear();
  has_mark_ = text.starts_with(kByteOrderMark);
  if (has_mark_) text.remove_prefix(kByteOrderMark.size());
  Section* section = nullptr;  // null where no line counts
  const auto begin_piece = [this] { return pieces_.emplace(pieces_.end()); };
  while (!text.empty()) {
    const std::string_view whole = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
    const std::string_view line = FirstLine(whole);
    text.remove_prefix(whole.size());
    if (const auto name = SectionName(line)) {
      const auto [entry, first] = sections_.try_emplace(Folded(*name));
      section = first ? &entry->second : nullptr;
      if (first) section->last = begin_piece();
    } else if (Trim(line).empty()) {
      const bool closing = section != nullptr && section->last == std::prev(pieces_.end());
      if (pieces_.empty() || closing) begin_piece();
    } else {
      if (sections_.empty()) section = &sections_[{}];
      if (section != nullptr) {
        const auto [key, first] = section->keys.try_emplace(Folded(NameOf(line)));
        if (first || section->last != std::prev(pieces_.end())) section->last = begin_piece();
        if (first) key->second = section->last;
      }
    }
    pieces_.back() += whole;
  }
}

std::string ProfileDocument::Text() const {
  std::size_t size = kByteOrderMark.size();
  for (const std::string& piece : pieces_) size += piece.size();
  std::string text;
  text.reserve(size);
  if (has_mark_) text += kByteOrderMark;
  for (const std::string& piece : pieces_) text += piece;
  return text;
}

std::optional<std::string_view> ProfileDocument::Value(std::string_view section,
                                                       std::string_view key) const {
  const auto place = sections_.find(Folded(section));
  if (place == sections_.end()) return std::nullopt;
  const auto found = place->second.keys.find(Folded(key));
  if (found == place->second.keys.end()) return std::nullopt;
  return ValueOf(*found->second);
}

std::unordered_map<std::string, std::string> ProfileDocument::Values(
    std::string_view section) const {
  std::unordered_map<std::string, std::string> values;
  const auto place = sections_.find(Folded(section));
  if (place == sections_.end()) return values;
  for (const auto& [key, piece] : place->second.keys) values.emplace(key, ValueOf(*piece));
  return values;
}

void ProfileDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
  key = Trim(key);
  value = Trim(value.substr(0, value.find_first_of("\r\n")));
  const auto [place, new_section] = sections_.try_emplace(Folded(section));
  auto& [last, keys] = place->second;
  const std::string_view name = NameOf(key);
  const auto [found, new_key] = keys.try_emplace(Folded(name));
  // No line has a key with "=" in its name: such a key is a new one each time.
  if (!new_key && name.size() == key.size()) {
    const std::string_view line = FirstLine(*found->second);
    std::string_view kept = NameOf(line);
    if (kept.size() == line.size()) kept = TrimBack(kept);
    found->second->replace(kept.size(), line.size() - kept.size(), std::string("=").append(value));
    return;
  }

  Piece at = pieces_.end();
  if (!new_section) {
    at = std::next(last);
  } else if (place->first.empty()) {
    at = pieces_.begin();
  } else {
    Add(at, std::string("[").append(Trim(section)).append("]"));
  }
  std::string line;
  line.reserve(key.size() + value.size() + std::string_view("=\r\n").size());
  last = Add(at, std::move(line.append(key).append("=").append(value)));
  if (new_key) found->second = last;
}

bool ProfileDocument::CanHold(std::string_view section, std::string_view key) {
  key = Trim(key);
  return section.find_first_of("\r\n") == std::string_view::npos &&
         key.find_first_of("\r\n") == std::string_view::npos && !key.empty() && key.front() != '[';
}

/// Puts a line before the piece and ends the one before it where that is still open.
ProfileDocument::Piece ProfileDocument::Add(Piece before, std::string line) {
  const std::string_view line_end = LineEnd(before);
  if (before != pieces_.begin() && !std::prev(before)->ends_with('\n')) {
    std::prev(before)->append(line_end);
  }
  return pieces_.insert(before, std::move(line.append(line_end)));
}

/// The line end for a new line before the piece: that of the line before it, else that of the
/// first line, else CR LF.
std::string_view ProfileDocument::LineEnd(Piece before) const {
  if (pieces_.empty()) return "\r\n";
  std::string_view ended = pieces_.front();
  ended = ended.substr(0, std::min(ended.find('\n'), ended.size() - 1) + 1);
  if (before != pieces_.begin() && std::prev(before)->ends_with('\n')) ended = *std::prev(before);
  return ended.ends_with("\r\n") || !ended.ends_with('\n') ? "\r\n" : "\n";
}

}  // namespace corvalis
