#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// What is told of other networks: of each enabled one everything, then of the next, and of the
/// station's own linkage last, if it was ever written. A traffic announcement that begins or ends
/// on another network is told at once, eight times.
class NetworkRotation {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);

  /// False if there is nothing to send; there is no next part then.
  [[nodiscard]] bool HasPart() const { return !parts_.empty(); }
  [[nodiscard]] air::Group14A NextPart();
  /// False if no network is enabled; there is no next announcement then.
  [[nodiscard]] bool HasAnnouncement() const { return !networks_.empty(); }
  [[nodiscard]] air::Group14B NextAnnouncement();
  /// What has to go out before anything else.
  [[nodiscard]] std::optional<air::Group14B> TakeUrgent();

 private:
  struct Network {
    int number;
    air::Group14B announcement;
  };
  struct Urgent {
    int number;
    int times;
  };

  void Announce(int number);

  Watch watch_{{kEon, kLi, kPi, kTp}};
  std::vector<air::Group14A> parts_;
  std::size_t part_ = 0;
  std::vector<Network> networks_;  // that are enabled
  std::size_t network_ = 0;
  std::optional<std::vector<bool>> announcing_;  // by network, as seen last
  std::deque<Urgent> urgent_;
};

}  // namespace corvalis::coder
