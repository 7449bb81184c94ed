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
  bool (ConfigData::*selected)() const;
  bool (ConfigData::*enabled)() const = nullptr;  ///< the Coder knows it; null: each does
};

inline constexpr std::array kLists = {
    ListName{"psn", &ConfigData::SetPresetPsn, &ConfigData::PresetPsn},
    ListName{"rt", &ConfigData::SetPresetRt, &ConfigData::PresetRt},
    ListName{"pin", &ConfigData::SetPresetPin, &ConfigData::PresetPin},
    ListName{"af", &ConfigData::SetPresetAf, &ConfigData::PresetAf},
    ListName{"tdc", &ConfigData::SetPresetTdc, &ConfigData::PresetTdc},
    ListName{"pi", &ConfigData::SetPresetPi, &ConfigData::PresetPi},
    ListName{"ct", &ConfigData::SetPresetCt, &ConfigData::PresetCt},
    ListName{"tp", &ConfigData::SetPresetTp, &ConfigData::PresetTp},
    ListName{"di", &ConfigData::SetPresetDi, &ConfigData::PresetDi},
    ListName{"ecc", &ConfigData::SetPresetEcc, &ConfigData::PresetEcc, &ConfigData::EccEnable},
    ListName{"lic", &ConfigData::SetPresetLic, &ConfigData::PresetLic, &ConfigData::LicEnable},
    ListName{"li", &ConfigData::SetPresetLi, &ConfigData::PresetLi, &ConfigData::EonEnable},
    ListName{"eon", &ConfigData::SetPresetEon, &ConfigData::PresetEon, &ConfigData::EonEnable},
    ListName{"ptyn", &ConfigData::SetPresetPtyn, &ConfigData::PresetPtyn, &ConfigData::PtynEnable},
    ListName{"tmc", &ConfigData::SetPresetTmc, &ConfigData::PresetTmc, &ConfigData::TmcEnable},
};

}  // namespace corvalis::send
