#pragma once

#include <functional>

#include "screen/window.h"

namespace corvalis {

/// What a button that talks to the Coder does, in one line: each of these is the whole road from
/// disabling `screen` to giving it the focus again. A failure has been reported when they return,
/// and stands in `LinkError`.

/// Reads from the Coder and shows what came.
void RunRead(Window& screen, const std::function<void()>& work);

/// Sends to the Coder. On a one-way link to a Coder that has not been addressed the operator is
/// warned, and nothing is sent.
void RunSend(Window& screen, const std::function<void()>& work);

/// Sends `passes` times, under the rule of `RunSend`. Ends at the first pass that leaves an error.
void RunBurst(Window& screen, int passes, const std::function<void()>& pass);

}  // namespace corvalis
