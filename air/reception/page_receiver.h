#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "air/groups.h"
#include "air/reception/data_services.h"
#include "air/reception/moment.h"

namespace corvalis::air {

/// Puts pages in house together. Their groups have no numbers, so a page counts only if nothing can
/// have been lost from the end of what came before it to its own. A 0D before a line break is a
/// character as others are.
class PageReceiver {
 public:
  void Hear(const Group6A& group, const Moment& moment, std::array<InHousePage, 32>& pages);

 private:
  void End(InHousePage& page, AirSeconds at) const;

  bool started_ = false;
  int page_ = 0;
  bool whole_ = false;  // so far, from its beginning
  bool ended_ = false;  // with 0D, unless a line break follows
  Moment moment_;
};

}  // namespace corvalis::air
