#pragma once

#include <string>
#include <vector>

#include "air/receiver.h"
#include "radio/group_source.h"

namespace corvalis::radio {

/// A receiver at a source of groups. It never waits: whoever has it calls `Listen` when the source
/// has something, or every now and then.
class Tuner {
 public:
  /// Begins anew at another source; see `GroupSource::Open`. If that can't be opened, nothing is
  /// heard any more.
  [[nodiscard]] std::string Open(const std::string& path);
  void Close();

  /// Takes a portion of what has come. `steady` are seconds on a clock that only runs forward. True
  /// if there may be more at once.
  bool Listen(double steady);

  [[nodiscard]] const air::Reception& Heard() const { return receiver_.Heard(); }
  [[nodiscard]] const GroupSource& Source() const { return source_; }
  /// The time of the air, in which `Heard` tells when something was: seconds since the source was
  /// opened. Groups that come faster than on the air, as those of a file, bring it ahead.
  [[nodiscard]] air::AirSeconds Now() const { return now_; }
  /// Groups that came so far.
  [[nodiscard]] std::uint64_t Groups() const { return count_; }

 private:
  GroupSource source_;
  air::Receiver receiver_;
  std::vector<air::HeardGroup> portion_;
  double opened_ = -1;  // on the steady clock; negative before the first `Listen`
  air::AirSeconds now_ = 0;
  std::uint64_t count_ = 0;
  bool ended_ = false;
};

}  // namespace corvalis::radio
