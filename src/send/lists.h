#pragma once

#include <array>
#include <string_view>

#include "config/config_data.h"

namespace corvalis::send {

/// A list, or a single value, of the whole configuration, by the word that `send` takes for it, and
/// how the record selects it.
struct ListName {
  std::string_view name;
  void (ConfigData::*select)(bool selected);
};

inline constexpr std::array kLists = {
    ListName{"psn", &ConfigData::SetPresetPsn}, ListName{"rt", &ConfigData::SetPresetRt},
    ListName{"pin", &ConfigData::SetPresetPin}, ListName{"af", &ConfigData::SetPresetAf},
    ListName{"tdc", &ConfigData::SetPresetTdc}, ListName{"pi", &ConfigData::SetPresetPi},
    ListName{"ct", &ConfigData::SetPresetCt},   ListName{"tp", &ConfigData::SetPresetTp},
    ListName{"di", &ConfigData::SetPresetDi},   ListName{"ecc", &ConfigData::SetPresetEcc},
    ListName{"lic", &ConfigData::SetPresetLic}, ListName{"li", &ConfigData::SetPresetLi},
    ListName{"eon", &ConfigData::SetPresetEon}, ListName{"ptyn", &ConfigData::SetPresetPtyn},
    ListName{"tmc", &ConfigData::SetPresetTmc},
};

}  // namespace corvalis::send
