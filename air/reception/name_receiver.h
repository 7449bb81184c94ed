#pragma once

#include <cstdint>
#include <optional>

#include "air/reception/moment.h"
#include "air/reception/texts.h"
#include "air/words.h"

namespace corvalis::air {

/// Puts the name of the station together. A station may change it behind any fourth segment, so
/// only four that follow one another make a name, and as many groups missing as could hide such a
/// change are a gap.
class NameReceiver {
 public:
  void Hear(int segment, const std::optional<BytePair>& characters, const Moment& moment,
            ServiceName& name);

 private:
  int next_ = 0;   // segment of this pass; 0: a pass has to begin
  int last_ = 0;   // segment that came, whether or not it was of a pass
  Moment moment_;  // of it
};

}  // namespace corvalis::air
