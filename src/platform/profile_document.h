#pragma once

#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace corvalis {

/// The text of one profile as its lines, with an index that finds a key. Knows the rules of
/// sections, keys, quotes, blanks and line ends, and nothing of files. Any bytes are a valid
/// profile, and what isn't asked for stays as it is.
///
/// A section's line is "[Name]"; its name ends at the last "]". Every other line that isn't blank
/// is a key, with or without "=", whatever it begins with; those before the first section belong
/// to the section with the empty name. The first of equal sections or keys is the one that counts.
class ProfileDocument {
 public:
  ProfileDocument() = default;
  ProfileDocument(const ProfileDocument&) = delete;
  ProfileDocument& operator=(const ProfileDocument&) = delete;

  /// Takes a new text and indexes it.
  void Parse(std::string_view text);
  [[nodiscard]] std::string Text() const;

  /// The value of the key without the blanks around it and then without one pair of equal quotes
  /// (" or '), until the next change of the document.
  [[nodiscard]] std::optional<std::string_view> Value(std::string_view section,
                                                      std::string_view key) const;

  /// All keys of the section, as `Folded` has them, with what `Value` gives for each.
  [[nodiscard]] std::unordered_map<std::string, std::string> Values(std::string_view section) const;

  /// The name by which a section or a key is found: without the blanks around it, in small letters.
  [[nodiscard]] static std::string Folded(std::string_view name);

  /// Gives the key a value, without the blanks around it; the value ends at its first line end. A
  /// new key goes to the end of its section, before the blank lines that close it; a new section
  /// to the end of the text. Names must pass `CanHold`.
  void Set(std::string_view section, std::string_view key, std::string_view value);

  /// Whether a text can hold such a key: no line end in either name, and a key that isn't empty
  /// and doesn't look like a section.
  [[nodiscard]] static bool CanHold(std::string_view section, std::string_view key);

 private:
  /// A line that can be found, and behind it those that can't, up to the next that can. The blank
  /// lines that close a section are a piece too.
  using Piece = std::list<std::string>::iterator;

  struct Section {
    Piece last;  // that isn't blank: behind it goes the section's next key
    std::unordered_map<std::string, Piece> keys;
  };

  [[nodiscard]] std::string_view LineEnd(Piece before) const;
  Piece Add(Piece before, std::string line);

  bool has_mark_ = false;  // a byte order mark comes before all pieces
  std::list<std::string> pieces_;
  std::unordered_map<std::string, Section> sections_;
};

}  // namespace corvalis
