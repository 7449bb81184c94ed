#pragma once

#include <array>
#include <string_view>

namespace corvalis {

/// The brands that a build can show, as the brand file names them.
enum class Brand { kNeutral, kVarn, kKOR, kZEL, kBreno, kTulm, kPaxen, kDOX };

struct BrandName {
  std::string_view value;  ///< of key "Firm" in the brand file; compared exactly
  Brand brand;
};

/// Values of the brand file. "NEU", and any other value, is the neutral brand.
inline constexpr std::array<BrandName, 7> kBrandNames{{{"VARN", Brand::kVarn},
                                                       {"KOR", Brand::kKOR},
                                                       {"ZEL", Brand::kZEL},
                                                       {"BRENO", Brand::kBreno},
                                                       {"TULM", Brand::kTulm},
                                                       {"PAXEN", Brand::kPaxen},
                                                       {"DOX", Brand::kDOX}}};

/// The brand that `value` names.
[[nodiscard]] constexpr Brand BrandOf(std::string_view value) {
  for (const BrandName& name : kBrandNames) {
    if (name.value == value) return name.brand;
  }
  return Brand::kNeutral;
}

}  // namespace corvalis
