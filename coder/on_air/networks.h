#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// What is told of other networks: of each enabled one everything, then of the next, and of the
/// station's own linkage last, if it was ever written. A traffic announcement that begins or ends
/// on another network is told at once, eight times.
class NetworkRotation {
 public:
  /// What a 14A tells.
  struct Part {
    bool tp = false;
    int variant = 0;
    std::uint16_t content = 0;  ///< block 3
    std::uint16_t pi = 0;

    bool operator==(const Part&) const = default;
  };
  /// What a 14B tells.
  struct Announcement {
    bool tp = false;
    bool ta = false;
    std::uint16_t pi = 0;
  };

  /// Looks at what has been written.
  void Follow(const Coder& coder);

  /// False if there is nothing to send; there is no next part then.
  [[nodiscard]] bool HasPart() const { return !parts_.empty(); }
  [[nodiscard]] Part NextPart();
  /// False if no network is enabled; there is no next announcement then.
  [[nodiscard]] bool HasAnnouncement() const { return !networks_.empty(); }
  [[nodiscard]] Announcement NextAnnouncement();
  /// What has to go out before anything else.
  [[nodiscard]] std::optional<Announcement> TakeUrgent();

 private:
  struct Network {
    int number;
    Announcement announcement;
  };
  struct Urgent {
    int number;
    int times;
  };

  void Announce(int number);

  Watch watch_{{kEon, kLi, kPi, kTp}};
  std::vector<Part> parts_;
  std::size_t part_ = 0;
  std::vector<Network> networks_;  // that are enabled
  std::size_t network_ = 0;
  std::optional<std::vector<bool>> announcing_;  // by network, as seen last
  std::deque<Urgent> urgent_;
};

}  // namespace corvalis::coder
