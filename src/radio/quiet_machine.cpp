#include "radio/quiet_machine.h"

#include <utility>

#include "link/serial_management.h"

namespace corvalis::radio {

QuietMachine::Quiet::Quiet(const Platform& like, Pump& still) : Platform(like) {
  pump = &still;
  program_folder = "/dev/null";
  settings_folder = "/dev/null";
  InstallPlatform(this);
}

QuietMachine::QuietMachine(const std::filesystem::path& file)
    : link_open_(std::exchange(LinkOpen, false)),
      record_before_(std::exchange(configData, &record_)) {
  record_.SetPath(file.parent_path());
  record_.SetFile(file.filename());
  record_.GetIni();
}

QuietMachine::~QuietMachine() {
  configData = record_before_;
  LinkOpen = link_open_;
  InstallPlatform(&installed_);
}

}  // namespace corvalis::radio
