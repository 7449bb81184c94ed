#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "config/programme_types.h"

namespace corvalis {

/// The names of the programme types, one for each of the 32. They live in memory and on the Coder:
/// New, Open and Save leave them alone. An index outside the types is `std::out_of_range`.
class PtynData {
 public:
  /// Loads itself from the file: this once.
  PtynData();

  /// The type on the screen.
  [[nodiscard]] std::uint8_t CurrentPtyn() const { return current_; }
  void SetCurrentPtyn(std::uint8_t index) { current_ = index; }
  /// The highest index.
  [[nodiscard]] static std::uint8_t MaxPtyList() { return kProgrammeTypes - 1; }

  /// Always 8 characters; what is set is cut, or filled with blanks.
  [[nodiscard]] const std::string& Ptyn(std::uint8_t index) const { return names_.at(index); }
  void SetPtyn(const std::string& text, std::uint8_t index);

  /// Reads the name from the Coder. A failure leaves eight blanks.
  void GetOneRds(std::uint8_t index);
  void SetOneRds(std::uint8_t index) const;

  void GetIni();
  void SetIni() const;

 private:
  std::array<std::string, kProgrammeTypes> names_;
  std::uint8_t current_ = 0;
};

/// The names; null before `MainForm` has created them.
extern PtynData* ptynData;

}  // namespace corvalis
