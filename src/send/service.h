#pragma once

#include <string>

#include "send/options.h"
#include "send/outcome.h"

namespace corvalis::send {

class Station;
class LineOwner;
class Sender;
class SharedLine;

/// Sends what comes from sockets and a followed file until SIGTERM or SIGINT, beside a desktop
/// program if `shared` is the line, which may be null. Returns the exit code; what a person should
/// know goes to the standard error.
[[nodiscard]] int RunService(const Options& options, Station& station, LineOwner& line,
                             Sender& sender, SharedLine* shared);

}  // namespace corvalis::send
