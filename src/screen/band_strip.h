#pragma once

#include <string>
#include <vector>

#include "screen/control.h"

namespace corvalis {

/// A transmitter's frequency on the FM band.
struct BandMark {
  double mhz = 0;
  std::string text;   ///< as it is told to a person
  bool main = false;  ///< of the transmitter that the others are alternatives to
  bool operator==(const BandMark&) const = default;
};

/// The FM band from end to end with a mark for each frequency of a list, so that a network is seen
/// at a glance. The operator can't change it.
class BandStrip : public Control {
 public:
  using Control::Control;

  static constexpr double kFrom = 87.5;  ///< MHz
  static constexpr double kTo = 108;

  /// In any order; a frequency may come twice. One outside the band isn't seen.
  [[nodiscard]] const std::vector<BandMark>& Marks() const { return marks_; }
  void SetMarks(const std::vector<BandMark>& marks) { Set(marks_, marks); }

  /// Frequencies of other bands, as they are told to a person.
  [[nodiscard]] const std::vector<std::string>& Beside() const { return beside_; }
  void SetBeside(const std::vector<std::string>& beside) { Set(beside_, beside); }

 private:
  std::vector<BandMark> marks_;
  std::vector<std::string> beside_;
};

}  // namespace corvalis
