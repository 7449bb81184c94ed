#pragma once

#include "radio/options.h"

namespace corvalis::desktop {

/// Shows the radio's window until it is closed; returns the exit code of the program. `argc` and
/// `argv` are the program's own, for what the desktop takes of them.
[[nodiscard]] int ShowRadio(const radio::Options& options, int& argc, char** argv);

}  // namespace corvalis::desktop
