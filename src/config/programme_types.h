#pragma once

#include <string>
#include <vector>

namespace corvalis {

/// The codes of the programme types (PTY) are 0 to `kProgrammeTypes` - 1.
inline constexpr int kProgrammeTypes = 32;

[[nodiscard]] constexpr bool IsProgrammeType(int pty) { return pty >= 0 && pty < kProgrammeTypes; }

/// The programme types of the RDS standard, by code, from one table and the same in every language.
/// The lists differ in a few spellings that their users know.

/// The lines of the lists from which a type is put on the air: each starts with its code in
/// decimal.
[[nodiscard]] const std::vector<std::string>& ProgrammeTypeLines();
/// The same for the names of the types.
[[nodiscard]] const std::vector<std::string>& PtynTypeLines();
/// The names alone, for the programme items.
[[nodiscard]] const std::vector<std::string>& ProgramTypeNames();

}  // namespace corvalis
