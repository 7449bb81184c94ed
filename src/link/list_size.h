#pragma once

#include <cstdint>
#include <string_view>

namespace corvalis {

/// True where the Coder can be asked while a list loads: over a call that is up, or over an open
/// two-way line.
[[nodiscard]] bool CoderCanBeAsked();

/// The numbers that an item can have in a frame: beyond, it would be another item's.
inline constexpr std::int16_t kItemNumbers = 256;            ///< one byte
inline constexpr std::int16_t kPageNumbers = 16;             ///< one digit, of a page of names
inline constexpr std::int16_t kProgrammeItemNumbers = 4096;  ///< a byte and a digit

/// The size of a list: the Coder's count if it answered, else the file's, else a fixed one.
class ListSize {
 public:
  /// Where the counts come from. The key is in the configuration file.
  struct Source {
    std::string_view section;
    std::string_view key;
    std::int16_t fallback;
    void (*read_count)(std::int16_t& count);  ///< the Coder's own count command
    std::int16_t limit;                       ///< a higher count is cut
    int digits = 1;                           ///< of the key's value, at least
    bool in_fields = false;                   ///< the key's first field is the count
    /// A Coder that doesn't answer still has the count that it answered last.
    bool keeps_answer = false;
  };
  explicit ListSize(const Source& source) : source_(source), file_(source.fallback) {}

  /// Reads the key and, where it can be asked and `offered`, asks the Coder. A failed question
  /// has been reported when this returns.
  void Load(bool offered = true);
  /// Writes the count to the file.
  void Store() const;

  /// At least 1 once loaded.
  [[nodiscard]] std::int16_t Count() const { return count_; }

 private:
  static constexpr std::int16_t kNotAsked = -1;

  Source source_;
  std::int16_t file_;
  std::int16_t coder_ = kNotAsked;
  std::int16_t count_ = 0;
};

}  // namespace corvalis
