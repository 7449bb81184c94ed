#pragma once

#include <cstddef>
#include <vector>

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The traffic messages on the air: each whose event is not 0 three times in a row, as often again
/// as its repetition says, and then the next.
class TrafficRotation {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// False if there is nothing to send; there is no next then.
  [[nodiscard]] bool HasMessage() const { return !messages_.empty(); }
  [[nodiscard]] const air::Group8A& Next();

 private:
  struct Message {
    air::Group8A group;
    int times = 0;  // in a row

    bool operator==(const Message&) const = default;
  };

  Watch watch_{{kTmc}};
  std::vector<Message> messages_;
  std::size_t at_ = 0;
  int sent_ = 0;  // how often the message has been
};

}  // namespace corvalis::coder
