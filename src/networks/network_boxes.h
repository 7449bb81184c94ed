#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "screen/text_box.h"

namespace corvalis {

/// The rules of the boxes of this room's screens.

/// Makes `box` hold a number of exactly `digits` hexadecimal digits: a fifth of four pushes out the
/// last. It is typed in capitals without Back space, and stored as soon as it has its length; a box
/// without its length can't be left.
void HoldHex(TextBox& box, int digits, std::function<void(std::int32_t value)> store);

/// What makes a frequency of what an operator's text begins with: the one to store, or nullopt if
/// it is none.
using FrequencyRule = std::function<std::optional<float>(float value)>;

/// Makes `box` hold a frequency with so many decimals. It is judged when the box is left. A refused
/// one stays to be seen; what is taken goes to `store`.
void HoldFrequency(TextBox& box, int decimals, FrequencyRule rule,
                   std::function<void(float value)> store);

}  // namespace corvalis
