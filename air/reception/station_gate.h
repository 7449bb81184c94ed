#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "air/group.h"
#include "air/reception/item.h"

namespace corvalis::air {

/// Lets through what is of one station. A PI makes a station once it came twice in a row. Groups
/// without a PI, and the first of another one, wait until the next PI says whose they are.
class StationGate {
 public:
  struct Passed {
    HeardGroup group;
    AirSeconds at = 0;
    std::optional<std::uint16_t> pi;
    bool foreign = false;  ///< not of the station, or spoilt: where it was, one may be lost
  };

  /// Groups that wait at most; when more come, they all are lost.
  static constexpr std::size_t kMost = 32;

  /// True if the group is the second of another station, of which all that follows is.
  bool Take(const HeardGroup& group, AirSeconds at);
  /// What goes through since the last call of `Take`, in the order in which it came.
  [[nodiscard]] std::span<const Passed> Through() const {
    return {waiting_.data() + from_, through_};
  }
  /// Groups that were lost before those.
  [[nodiscard]] std::size_t LostBefore() const { return through_ == 0 ? 0 : lost_; }

  [[nodiscard]] std::optional<std::uint16_t> Station() const { return station_; }
  /// That came once.
  [[nodiscard]] std::optional<std::uint16_t> Candidate() const { return candidate_; }
  /// What waits is let go.
  void Break();

 private:
  void LetThrough(std::size_t from);

  std::optional<std::uint16_t> station_;
  std::optional<std::uint16_t> candidate_;
  std::size_t candidate_at_ = 0;  // its first group among those that wait
  std::array<Passed, kMost> waiting_;
  std::size_t count_ = 0;
  std::size_t from_ = 0;     // what goes through
  std::size_t through_ = 0;  // how many of them
  std::size_t lost_ = 0;
};

}  // namespace corvalis::air
