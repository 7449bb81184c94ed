#pragma once

#include <memory>

#include "air/group.h"
#include "air/reception.h"

namespace corvalis::air {

/// A radio tuned to one frequency: groups go in as they were received, and what it knows of the
/// station comes of them. It has no clock: the time of each group is the caller's, who may count
/// groups or look at a watch. Whatever goes in, it holds a bounded amount: each list of `Reception`
/// says how much.
///
/// What a single block can say wrongly without anyone noticing (an item number, a code of a
/// frequency, something of another network) counts once it came twice the same. A group whose PI is
/// missing waits for the next PI: if that is the station's own, it was of the station.
class Receiver {
 public:
  Receiver();
  Receiver(Receiver&&) noexcept;
  Receiver& operator=(Receiver&&) noexcept;
  ~Receiver();

  /// A group in which every block is missing has to be told too, as far as the caller knows of it:
  /// it may have been of any kind.
  void Hear(const HeardGroup& group, AirSeconds at);
  /// Nobody knows what was on the air in between: what is half heard is let go. Without being told,
  /// a silence of 15 seconds is taken so.
  void Break();
  /// The time goes on without a group: the last minute empties.
  void Pass(AirSeconds now);

  [[nodiscard]] const Reception& Heard() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace corvalis::air
