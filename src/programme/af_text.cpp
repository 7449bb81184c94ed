#include "programme/af_text.h"

#include <algorithm>
#include <string>

#include "air/af_codes.h"
#include "config/conversions.h"

namespace corvalis {

std::optional<float> AfTextValue(std::string_view text) {
  if (!ParseNumber(text)) return std::nullopt;
  const std::size_t point = text.find('.');
  if (point != std::string_view::npos && point > 0) {
    text = text.substr(0, point + 4);
    const std::string_view decimals = text.substr(point + 1);
    const std::string_view behind = decimals.substr(std::min<std::size_t>(1, decimals.size()));
    std::string steps(behind);
    steps.resize(2, '0');
    if (steps != "00" && steps != "25" && steps != "50" && steps != "75") return std::nullopt;
  }
  const auto value = ParseFloat(text);
  if (!value ||
      !(air::IsFm(*value) || *value == air::kNoFreq || air::IsLf(*value) || air::IsMf(*value))) {
    return std::nullopt;
  }
  return value;
}

}  // namespace corvalis
