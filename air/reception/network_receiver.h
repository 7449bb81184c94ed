#pragma once

#include "air/groups.h"
#include "air/reception.h"

namespace corvalis::air {

/// What 14A and 14B tell: of the station itself its linkage, of others everything.
void HearNetwork(const Group14A& group, AirSeconds at, Reception& reception);
void HearNetwork(const Group14B& group, AirSeconds at, Reception& reception);

}  // namespace corvalis::air
