#pragma once

#include <array>
#include <string_view>

namespace corvalis {

inline constexpr int kLanguageCodes = 128;

/// The language that a Language Identification Code names, 0 to 127, by the RDS standard; empty
/// where the code has no name. `std::out_of_range` outside.
[[nodiscard]] std::string_view LanguageOfCode(int code);

/// The language codes by name.
class LanguageCodeIndex {
 public:
  LanguageCodeIndex();

  /// How many lines have a name: those come first.
  [[nodiscard]] int NamedLines() const { return named_; }
  /// `std::out_of_range` outside 0 to 127, both ways.
  [[nodiscard]] int CodeOfLine(int line) const;
  [[nodiscard]] int LineOfCode(int code) const;

 private:
  std::array<int, kLanguageCodes> order_{};
  std::array<int, kLanguageCodes> line_of_code_{};
  int named_ = 0;
};

}  // namespace corvalis
