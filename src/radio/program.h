#pragma once

#include <iosfwd>

#include "radio/options.h"

namespace corvalis::radio {

/// The exit code for bad use, of options or of files.
inline constexpr int kBadUse = 3;

/// What `corvalis-radio` does without a window. The platform must be installed; of it the files and
/// the clock are used. Each returns the exit code of the program. What is wrong is told to
/// `complaints` in a sentence.

/// Listens to the end of the source, for so many seconds, or until SIGINT or SIGTERM, and prints
/// the comparison, or without a file all that was heard.
[[nodiscard]] int RunReport(const Options& options, std::ostream& out, std::ostream& complaints);

/// Prints what radios will not make of a station file.
[[nodiscard]] int RunJudge(const Options& options, std::ostream& out, std::ostream& complaints);

}  // namespace corvalis::radio
