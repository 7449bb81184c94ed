#pragma once

#include <string_view>
#include <vector>

namespace corvalis::send {

/// Tells the service manager how it stands, "READY=1". Does nothing where there is none.
void TellServiceManager(std::string_view state);

/// The listening sockets that the service manager has opened for this process. Each once.
[[nodiscard]] std::vector<int> SocketsOfServiceManager();

}  // namespace corvalis::send
