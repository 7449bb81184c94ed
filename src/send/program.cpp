#include "send/program.h"

#include <unistd.h>

#include <iostream>
#include <memory>

#include "machine/folders.h"
#include "machine/qt_serial_port.h"
#include "machine/qt_time.h"
#include "platform/platform.h"
#include "platform/profile_folder.h"
#include "send/answers.h"
#include "send/dry_port.h"
#include "send/one_shot.h"
#include "send/service.h"
#include "send/shared_line.h"

namespace corvalis::send {

namespace {

constexpr std::string_view kExtension = ".rds";

// The services of this machine, installed for as long as this lives.
class Services {
 public:
  explicit Services(const Options& options) {
    if (!options.device.empty()) real_.UseDevice(options.device);
    dry_.Wrote = [this, json = options.json](std::span<const std::uint8_t> bytes) {
      if (!json) {
        std::cout << AsHex(bytes) << "\n";
      } else {
        dry_frames.append(dry_frames.empty() ? "" : ", ").append(AsHex(bytes));
      }
    };
    platform_.clock = &time_;
    platform_.pump = &time_;
    platform_.dialogs = &dialogs;
    platform_.profiles = &profiles_;
    platform_.settings_folder = machine::SettingsFolder();
    if (options.file.empty()) {
      platform_.program_folder = machine::ProgramFolder();
    } else {
      platform_.program_folder = FolderOf(options.file);
      platform_.program_folder.pop_back();  // its "/"
      const std::size_t name = options.file.rfind('/') + 1;
      platform_.program_name =
          options.file.substr(name, options.file.size() - name - kExtension.size());
    }
    InstallPlatform(&platform_);
    SerialPort* own = options.dry ? static_cast<SerialPort*>(&dry_) : &real_;
    if (!options.share.empty()) own = (shared = std::make_unique<SharedLine>(real_)).get();
    line = std::make_unique<LineOwner>(*own);
    platform_.port = line.get();
  }
  ~Services() {
    line.reset();
    shared.reset();
    InstallPlatform(nullptr);
  }
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;

  [[nodiscard]] std::string StationFile() const {
    return platform_.program_folder + "/" + platform_.program_name + std::string(kExtension);
  }

  KeptDialogs dialogs;
  std::string dry_frames;              // of a dry run, for the next object
  std::unique_ptr<SharedLine> shared;  // null unless the desktop program is beside this
  std::unique_ptr<LineOwner> line;

 private:
  machine::QtTime time_;
  machine::QtSerialPort real_;
  DryPort dry_;
  ProfileStore profiles_;
  Platform platform_;
};

}  // namespace

int RunProgram(const Options& options) {
  Services services(options);
  // Without the file nothing says how the Coder is reached.
  if (access(services.StationFile().c_str(), R_OK) != 0) {
    std::cerr << "corvalis-send: the station file " << services.StationFile()
              << " can't be read; --file names another\n";
    return ExitCode(Outcome::Kind::kUnfit);
  }
  Station station({.id = options.id, .burst = options.burst, .port = options.port});
  Sender sender(station, *services.line, services.dialogs, options.dry);
  sender.Note = [](const std::string& words) { std::cerr << "corvalis-send: " << words << "\n"; };
  if (options.Serves()) {
    return RunService(options, station, *services.line, sender, services.shared.get());
  }
  OneShot one_shot(sender, options.rules,
                   {.json = options.json,
                    .verbose = options.verbose,
                    .frames = options.dry ? &services.dry_frames : nullptr},
                   std::cout, std::cerr);
  if (options.command == std::vector<std::string>{"-"}) return one_shot.RunLines(std::cin);
  return one_shot.RunWords(options.command);
}

}  // namespace corvalis::send
