#pragma once

#include <vector>

#include "air/reception.h"
#include "radio/face.h"

namespace corvalis::radio {

/// The lists of a radio's face.

void ShowFrequencies(const air::FrequencySets& sets, Face& face);
void ShowNetworks(const std::vector<air::OtherNetwork>& networks, Face& face);
/// Of traffic messages, and of each channel, the last few; of a long page its beginning.
void ShowData(const air::Reception& heard, Face& face);

}  // namespace corvalis::radio
