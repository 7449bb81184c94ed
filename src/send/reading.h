#pragma once

#include "send/command.h"
#include "send/outcome.h"

namespace corvalis::send {

/// Reads the one item that `command` names from the Coder. The value is in `outcome` if `LinkError`
/// is 0 when it returns; a failure has been reported.
void ReadOne(const Command& command, Outcome& outcome);

}  // namespace corvalis::send
