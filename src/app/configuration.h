#pragma once

#include <string>

#include "config/config_data.h"

namespace corvalis {

/// The whole configuration: every item that is selected for it, in the order in which they travel.

/// A flag of the record, such as one that selects one kind of item.
using PresetFlag = bool (ConfigData::*)() const;

enum class ConfigurationRun {
  kRead,   ///< from the Coder
  kSend,   ///< to the Coder, with the present date and time
  kBurst,  ///< one of several to a Coder that doesn't answer, with the record's date and time
};

/// Carries out one pass. To be called within the road of a transfer (see transfer.h). A failure has
/// been reported and stands in `LinkError` when it returns; what was done before it stays done.
void RunConfiguration(ConfigurationRun run);

/// All passes of a burst: one more than `ConfigData::Burst`. Ends at the first that leaves an
/// error.
void BurstConfiguration();

/// What a run carries.
struct ConfigurationLoad {
  int items = 0;       ///< of one pass
  int passes = 1;      ///< of the run
  double seconds = 0;  ///< all passes, on the line as it is set, with the pauses the Coder needs
};
[[nodiscard]] ConfigurationLoad LoadOfConfiguration(ConfigurationRun run);

/// What a flag selects, in words: "50 radio texts".
[[nodiscard]] std::string TravelsWith(PresetFlag flag);

/// A time in words, as "about 20 seconds". Exact to what a person plans with.
[[nodiscard]] std::string AboutInWords(double seconds);

}  // namespace corvalis
