#pragma once

#include <optional>
#include <string_view>

namespace corvalis {

/// The frequency that an operator's text stands for: FM in MHz, in steps of 25 kHz, LF or MF in
/// kHz, or 0 for none, with a "." for the point; nullopt for anything else. Decimals beyond the
/// third are dropped.
[[nodiscard]] std::optional<float> AfTextValue(std::string_view text);
[[nodiscard]] inline bool CheckAfText(std::string_view text) {
  return AfTextValue(text).has_value();
}

}  // namespace corvalis
