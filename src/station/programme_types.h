#pragma once

#include <string>
#include <vector>

namespace corvalis {

/// The codes of the programme types (PTY) are 0 to `kProgrammeTypes` - 1.
inline constexpr int kProgrammeTypes = 32;

[[nodiscard]] constexpr bool IsProgrammeType(int pty) { return pty >= 0 && pty < kProgrammeTypes; }

/// The programme types of the RDS standard, by code, as the lines of a list: each starts with its
/// code in decimal. The same in every language.
[[nodiscard]] const std::vector<std::string>& ProgrammeTypeLines();

}  // namespace corvalis
