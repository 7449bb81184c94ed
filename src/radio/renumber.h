#pragma once

#include <vector>

#include "radio/entry.h"

namespace corvalis::radio {

/// From here on networks and lists are numbered that no prepared one answers to.
inline constexpr int kUnknown = 1000;

[[nodiscard]] bool IsOfNetwork(Item item);

/// Gives what was heard of networks and lists the numbers of the prepared ones that they are: a
/// network by its PI, else by its name; a list of method B by the transmitter, else the one that it
/// has most in common with.
void Renumber(const std::vector<Entry>& prepared, std::vector<Entry>& heard);

}  // namespace corvalis::radio
