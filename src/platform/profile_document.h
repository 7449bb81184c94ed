#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace corvalis {

/// The text of one profile, with an index that finds a key without reading the text again. Knows
/// the rules of sections, keys, blanks and line ends, and nothing of files. Any bytes are a valid
/// profile; what isn't a section or a key is left as it is.
class ProfileDocument {
 public:
  /// Bytes of the text, from `from` to before `to`; `to` is `kEnd` where everything behind moved.
  struct Range {
    static constexpr std::size_t kEnd = std::string::npos;
    std::size_t from = 0;
    std::size_t to = 0;

    [[nodiscard]] bool Empty() const { return from == to; }
    /// Whether the two overlap or follow each other without a gap.
    [[nodiscard]] bool Touches(const Range& other) const {
      return from <= other.to && other.from <= to;
    }
  };

  /// Takes a new text and indexes it.
  void Parse(std::string text);
  [[nodiscard]] const std::string& Text() const { return text_; }

  /// The value of the key without the blanks around it, until the next change of the document.
  [[nodiscard]] std::optional<std::string_view> Value(std::string_view section,
                                                      std::string_view key) const;

  /// Gives the key a value and returns the bytes that changed: none if the text has it already.
  /// Names must pass `CanHold`. The value ends at its first line end.
  Range Set(std::string_view section, std::string_view key, std::string_view value);

  /// Whether a text can hold such a key and find it again: no line end in either name, no "]" in
  /// the section's, no "=" in the key's, and a key that isn't empty and doesn't look like a comment
  /// or a section.
  [[nodiscard]] static bool CanHold(std::string_view section, std::string_view key);

 private:
  /// What stands between a key's "=" and its line end.
  struct Span {
    std::size_t from;
    std::size_t to;
  };

  std::size_t Replace(std::size_t from, std::size_t to, std::string_view by);
  [[nodiscard]] std::string_view LineEndAt(std::size_t at) const;

  std::string text_;
  std::vector<Span> values_;
  std::unordered_map<std::string, std::size_t> keys_;  // to its place in values_
  // To the end of the section's last line that isn't blank, where its next key goes.
  std::unordered_map<std::string, std::size_t> sections_;
};

}  // namespace corvalis
