#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/profile_store.h"
#include "platform/pump.h"
#include "platform/serial_port.h"

namespace corvalis {

/// The machine's services. `main()`, or a test, makes one and installs it before anything else.
struct Platform {
  Clock* clock = nullptr;
  Pump* pump = nullptr;
  Dialogs* dialogs = nullptr;
  ProfileStore* profiles = nullptr;
  SerialPort* port = nullptr;
  std::string program_folder;             ///< where the default configuration file lives
  std::string program_name = "corvalis";  ///< without extension
  std::string settings_folder;            ///< where the brand file and the port links live
};

/// The installed platform. Using it before `InstallPlatform` is a bug and ends in
/// `std::logic_error`.
[[nodiscard]] Platform& Machine();

/// Installs `platform`, which must outlive its use; null takes it away.
void InstallPlatform(Platform* platform);

}  // namespace corvalis
