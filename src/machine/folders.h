#pragma once

#include <string>

namespace corvalis::machine {

/// The folder of the program's own that holds the default configuration file, and the one that
/// holds the brand file and the links of the ports. Each is made if it is missing; where that
/// fails, the home folder serves.
[[nodiscard]] std::string ProgramFolder();
[[nodiscard]] std::string SettingsFolder();

}  // namespace corvalis::machine
