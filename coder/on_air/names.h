#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "air/words.h"
#include "coder/coder.h"
#include "coder/on_air/air_time.h"
#include "coder/on_air/clock.h"
#include "coder/on_air/turn.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The active page of names; nullopt without pages in use. They are once one was made active, the
/// plan may do so, or a row of one has a time.
[[nodiscard]] std::optional<int> PageInUse(const Coder& coder);

/// The programme service name on the air, two characters at a time. The names with a rotation time
/// take turns; without one it is name 0. With pages in use they are those of the active page. A
/// name is sent to its end as it was when its first characters went out.
class NameRotation {
 public:
  struct Segment {
    int number = 0;  ///< 0 to 3
    air::BytePair characters{};
  };

  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// What goes out next. The names that are set aside for date and hour show `local`, if there is
  /// a time.
  [[nodiscard]] Segment Next(AirTime now, std::optional<LocalMinute> local);

 private:
  static constexpr std::size_t kLength = 8;
  using Text = std::array<std::uint8_t, kLength>;

  struct Name {
    int number;
    int seconds;
    Text text;
  };

  [[nodiscard]] Text Shown(const Name& name, std::optional<LocalMinute> local) const;

  Watch watch_{{kPsn, kPsnPage, kPsnPageActive, kPsnPlan, kCt}};
  std::vector<Name> names_;  // that take turns; one without seconds if none does
  std::optional<int> page_;  // that is active
  int date_name_ = 0;
  int hour_name_ = 0;
  Turn turn_;
  Text text_{};  // as it is being sent
  int segment_ = 0;
};

}  // namespace corvalis::coder
