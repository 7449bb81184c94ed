#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace corvalis {

/// RDS has group numbers 0 to 15, each in a version A and a version B. The group table holds the A
/// groups at 0 to 15 and the B groups at 16 to 31.
inline constexpr int kGroupNumbers = 16;
inline constexpr int kGroups = 2 * kGroupNumbers;

/// "0A" to "15B", by position in the group table.
[[nodiscard]] std::string GroupName(int group);

/// The group sequence: which group types the Coder sends, and how often within one cycle.
/// An index outside 0 to 31 is `std::out_of_range`; the setters check nothing else.
class GroupsData {
 public:
  /// All groups off with 0 repetitions, then what the file holds.
  GroupsData();

  [[nodiscard]] std::int16_t MaxGroupNum() const { return kGroups; }
  /// Repetitions run from 0 to this less 1.
  [[nodiscard]] std::int16_t MaxRepetitions() const { return kMaxRepetitions; }

  [[nodiscard]] bool Active(int index) const { return At(index).active; }
  void SetActive(int index, bool active) { At(index).active = active; }
  [[nodiscard]] std::int16_t Repetitions(int index) const { return At(index).repetitions; }
  void SetRepetitions(int index, std::int16_t repetitions) { At(index).repetitions = repetitions; }

  /// Loads the table from the file. A missing or empty key is a group that is off with 0
  /// repetitions; a number that can't be converted leaves the repetitions as they were.
  void GetIni();
  /// Stores all groups, those of version B too where the Coder model has none.
  void SetIni();

 private:
  static constexpr std::int16_t kMaxRepetitions = 100;

  struct Entry {
    bool active = false;
    std::int16_t repetitions = 0;
  };

  [[nodiscard]] Entry& At(int index) { return entries_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] const Entry& At(int index) const {
    return entries_.at(static_cast<std::size_t>(index));
  }

  std::array<Entry, kGroups> entries_;
};

/// The group sequence; null before `MainForm` has created it.
extern GroupsData* groupsData;

}  // namespace corvalis
