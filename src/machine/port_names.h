#pragma once

#include <string>

namespace corvalis::machine {

/// The device that "COM `number`" (1 to 4) stands for: what the link `com<number>` in
/// `settings_folder` leads to; where there is no such link, `ttyUSB<number - 1>` of `device_folder`
/// if it is there, else its `ttyS<number - 1>`. All links on the way are followed, as far as they
/// lead. The device need not exist.
[[nodiscard]] std::string DeviceOfPort(int number, const std::string& settings_folder,
                                       const std::string& device_folder = "/dev");

/// What `name` leads to: all links on the way are followed, as far as they lead.
[[nodiscard]] std::string DeviceBehind(const std::string& name);

}  // namespace corvalis::machine
