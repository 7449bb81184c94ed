#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/air_time.h"
#include "coder/on_air/turn.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The radio texts on the air: those with a rotation time take turns, each for its time and then to
/// its end. A text shorter than the group allows ends with a 0D. The flag turns at each text that
/// is another. The two kinds of group carry the same text, each at its own pace; the next begins
/// when each kind that is in use has brought it whole.
class TextRotation {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// False if there is nothing to send; there is no next then.
  [[nodiscard]] bool HasText() const { return !texts_.empty(); }
  /// Tells which kinds are sent at all. What is left off stands at its beginning.
  void SetInUse(bool long_kind, bool short_kind);
  /// Four characters of up to 64, as a 2A carries them.
  [[nodiscard]] air::Group2A NextLong(AirTime now);
  /// Two characters of up to 32, as a 2B carries them.
  [[nodiscard]] air::Group2B NextShort(AirTime now);

 private:
  static constexpr std::size_t kLength = 64;
  static constexpr std::size_t kSegments = 16;

  struct Segment {
    bool flag;
    int number;                              // 0 to 15
    std::array<std::uint8_t, 4> characters;  // of the short kind the first two
  };
  struct Item {
    int number;
    int seconds;
    Bytes text;  // without the blanks at its end
  };
  // How far a kind of group is in the text.
  struct Pass {
    std::size_t width;  // characters a group
    std::size_t segment = 0;
    bool whole = false;  // has been sent to its end
  };

  [[nodiscard]] Segment Next(Pass& pass, const Pass& other, AirTime now);

  Watch watch_{{kRt}};
  std::vector<Item> texts_;
  Turn turn_;
  Bytes text_;  // as it is being sent
  bool begun_ = false;
  bool flag_ = false;
  Pass long_{.width = 4};
  Pass short_{.width = 2};
};

}  // namespace corvalis::coder
