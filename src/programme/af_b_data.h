#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "air/af_b_codes.h"
#include "link/list_size.h"

namespace corvalis {

/// The lists of alternative frequencies of method B, one for each transmitter of a network, in MHz,
/// 0 for none. Lists count from 0; an index outside them is `std::out_of_range`.
class AfBData {
 public:
  /// Loads itself from the file.
  AfBData();

  [[nodiscard]] std::int16_t MaxAfBListNum() const { return size_.Count(); }
  /// The list on the screen.
  [[nodiscard]] std::int16_t CurrentAfBListNum() const { return current_; }
  void SetCurrentAfBListNum(std::int16_t list) { current_ = list; }

  [[nodiscard]] float MainFreq(std::int16_t list) const { return At(list).freq.main; }
  void SetMainFreq(std::int16_t list, float value) { At(list).freq.main = value; }
  /// The operator's description. The file does not keep it: loaded again, one that is a number is
  /// alternative frequency 12, and any other is gone.
  [[nodiscard]] const std::string& Descr(std::int16_t list) const { return At(list).descr; }
  void SetDescr(std::int16_t list, const std::string& text) { At(list).descr = text; }
  /// The alternatives, 0 to 12; screen and file use 0 to 11.
  [[nodiscard]] float ListFreq(std::int16_t list, std::int16_t index) const {
    return At(list).freq.others.at(static_cast<std::size_t>(index));
  }
  void SetListFreq(std::int16_t list, std::int16_t index, float value) {
    At(list).freq.others.at(static_cast<std::size_t>(index)) = value;
  }

  /// Reads a list from the Coder. A failure leaves 87.5 throughout.
  void GetOneRds(std::int16_t list);
  void SetOneRds(std::int16_t list) const;

  /// Loads the lists from the file, from nothing, as many as the Coder or the file says. List 0 is
  /// the current one then.
  void GetIni();
  void SetIni() const;

  /// The main frequency and the alternatives of the screen.
  [[nodiscard]] static constexpr std::int16_t GetMaxAfNum() {
    return air::AfBFrequencies::kShown + 1;
  }
  [[nodiscard]] static constexpr float GetMinFreq() { return air::kMinFreq; }
  [[nodiscard]] static constexpr float GetMaxFreq() { return air::kMaxFreqB; }
  [[nodiscard]] static constexpr float GetNoFreq() { return air::kNoFreq; }

 private:
  struct List {
    air::AfBFrequencies freq;
    std::string descr;
  };
  [[nodiscard]] const List& At(std::int16_t list) const {
    return lists_.at(static_cast<std::size_t>(list));
  }
  [[nodiscard]] List& At(std::int16_t list) { return lists_.at(static_cast<std::size_t>(list)); }

  ListSize size_;
  std::int16_t current_ = 0;
  std::vector<List> lists_;
};

/// The lists; null before `MainForm` has created them.
extern AfBData* afBData;

}  // namespace corvalis
