#pragma once

#include <cstddef>
#include <vector>

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The transparent data channels on the air, four bytes at a time: first the enabled subchannels of
/// channel 0, an address of 12 bits and a command of 20 each, then the enabled channels of 1 to 31,
/// then the first again.
class ChannelRotation {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// False if there is nothing to send; there is no next then.
  [[nodiscard]] bool HasData() const { return !data_.empty(); }
  [[nodiscard]] air::Group5A Next();

 private:
  Watch watch_{{kTdc}};
  std::vector<air::Group5A> data_;
  std::size_t at_ = 0;
};

}  // namespace corvalis::coder
