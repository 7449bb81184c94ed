#pragma once

#include <filesystem>

#include "config/config_data.h"
#include "platform/platform.h"
#include "platform/pump.h"

namespace corvalis::radio {

/// While it lives, the data classes read a station file and do nothing else: no key is written, no
/// file made, no Coder asked, and no event runs. Where the file says nothing the program's defaults
/// hold, not what its own default file has. The platform must be installed.
class QuietMachine {
 public:
  /// Opens the file, which is named from the root.
  explicit QuietMachine(const std::filesystem::path& file);
  ~QuietMachine();
  QuietMachine(const QuietMachine&) = delete;
  QuietMachine& operator=(const QuietMachine&) = delete;

 private:
  struct StillPump : Pump {
    void RunPending() override {}
    void RunUntil(double /*deadline*/) override {}
  };
  struct Quiet : Platform {
    Quiet(const Platform& like, Pump& still);
  };

  // In the order in which each wants the others.
  Platform& installed_ = Machine();
  StillPump pump_;
  Quiet machine_{installed_, pump_};
  ProfileStore::Catch caught_{*installed_.profiles};
  bool link_open_;
  ConfigData record_;
  ConfigData* record_before_;
};

}  // namespace corvalis::radio
