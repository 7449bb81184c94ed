#pragma once

#include <string>

#include "send/options.h"
#include "send/outcome.h"

namespace corvalis::send {

class Station;
class LineOwner;
class Sender;

/// Sends what comes from sockets and a followed file until SIGTERM or SIGINT. Returns the exit
/// code; what a person should know goes to the standard error.
[[nodiscard]] int RunService(const Options& options, Station& station, LineOwner& line,
                             Sender& sender);

}  // namespace corvalis::send
