#pragma once

#include "send/options.h"
#include "send/outcome.h"

namespace corvalis::send {

/// The program on this machine: its folders, its port and the standard streams. A QCoreApplication
/// must be there. Returns the exit code.
[[nodiscard]] int RunProgram(const Options& options);

}  // namespace corvalis::send
