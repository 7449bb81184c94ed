#include "machine/port_names.h"

#include <filesystem>
#include <system_error>

namespace corvalis::machine {

namespace fs = std::filesystem;

std::string DeviceOfPort(int number, const std::string& settings_folder,
                         const std::string& device_folder) {
  std::error_code error;
  const std::string index = std::to_string(number - 1);
  fs::path name = fs::path(settings_folder) / ("com" + std::to_string(number));
  // A link that leads nowhere still says which device is meant.
  if (fs::symlink_status(name, error).type() == fs::file_type::not_found) {
    name = fs::path(device_folder) / ("ttyUSB" + index);
    if (!fs::exists(name, error)) name = fs::path(device_folder) / ("ttyS" + index);
  }
  return DeviceBehind(name.string());
}

std::string DeviceBehind(const std::string& name) {
  const fs::path path(name);
  std::error_code error;
  if (const fs::path device = fs::canonical(path, error); !error) return device.string();
  if (const fs::path target = fs::read_symlink(path, error); !error) {
    return (path.parent_path() / target).lexically_normal().string();
  }
  return name;
}

}  // namespace corvalis::machine
