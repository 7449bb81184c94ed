#pragma once

#include <cstdint>

#include "air/af_codes.h"

namespace corvalis {

/// The list of alternative frequencies of method A: the Coder's AF list 0. Entries count from 0; an
/// index outside the list is `std::out_of_range`.
class AfAData {
 public:
  /// Loads itself from the file.
  AfAData();

  /// FM in MHz, LF and MF in kHz, 0 for no frequency. Any value is kept.
  [[nodiscard]] float Freq(std::int16_t index) const {
    return freq_.at(static_cast<std::size_t>(index));
  }
  void SetFreq(std::int16_t index, float value) {
    freq_.at(static_cast<std::size_t>(index)) = value;
  }

  /// Reads the list from the Coder. A failure leaves 87.5 in every entry.
  void GetOneRds();
  /// Sends the list as it stands. The first time that this succeeds in a run of the program, all
  /// other lists of the Coder are emptied, as those of method B would go on being sent. If that
  /// fails, it is done again after the next send.
  void SetOneRds();
  [[nodiscard]] bool OtherListsCleared() const { return other_lists_cleared_; }
  /// The lists of a Coder that can't be asked how many it has.
  static constexpr std::int16_t kMostLists = 100;

  /// Loads the list from the file, from nothing; a field that can't be converted is no frequency.
  void GetIni();
  void SetIni() const;

  [[nodiscard]] static constexpr std::int16_t GetMaxAfNum() { return air::kAfEntries; }
  [[nodiscard]] static constexpr float GetMinFreq() { return air::kMinFreq; }
  [[nodiscard]] static constexpr float GetMaxFreq() { return air::kMaxFreq; }
  [[nodiscard]] static constexpr float GetMinLFFreq() { return air::kMinLfFreq; }
  [[nodiscard]] static constexpr float GetMaxLFFreq() { return air::kMaxLfFreq; }
  [[nodiscard]] static constexpr float GetMinMFFreq() { return air::kMinMfFreq; }
  [[nodiscard]] static constexpr float GetMaxMFFreq() { return air::kMaxMfFreq; }
  [[nodiscard]] static constexpr float GetNoFreq() { return air::kNoFreq; }

  /// How many entries take two bytes.
  [[nodiscard]] int AfByteCount() const { return air::AfByteCount(freq_); }
  /// Puts the entries in the order for sending.
  void ArrangeAfList() { air::ArrangeAfList(freq_); }

 private:
  static void ClearAfLists();

  air::AfFrequencies freq_{};
  bool other_lists_cleared_ = false;
};

/// The list; null before `MainForm` has created it.
extern AfAData* afAData;

}  // namespace corvalis
