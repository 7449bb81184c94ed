#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "air/group.h"
#include "air/words.h"

namespace corvalis::air {

/// What each kind of group says, field by field. `Build` makes the blocks of it, `Take` takes them
/// apart. What stands in block 3 or 4 by itself is optional: it is missing where its block was
/// missing on reception. Built, what is missing is 0.

/// What 0A, 0B and 15B say of the programme at this moment.
struct Switches {
  bool ta = false;
  bool music = false;  ///< M/S
  bool di = false;     ///< the bit of DI that goes with the segment
  int segment = 0;     ///< 0 to 3

  bool operator==(const Switches&) const = default;
};
/// The bits of DI.
enum Di : std::uint8_t { kStereo = 1, kArtificialHead = 2, kCompressed = 4, kDynamicPty = 8 };
/// The bit that goes with a segment.
[[nodiscard]] constexpr Di DiOf(int segment) { return static_cast<Di>(kDynamicPty >> segment); }

/// Four bytes in block 3 and 4.
struct FourBytes {
  std::optional<BytePair> first = {};
  std::optional<BytePair> second = {};

  bool operator==(const FourBytes&) const = default;

  [[nodiscard]] static FourBytes Of(const std::array<std::uint8_t, 4>& bytes) {
    return {.first = BytePair{bytes[0], bytes[1]}, .second = BytePair{bytes[2], bytes[3]}};
  }
};

/// Switches, two codes of frequencies, and characters 2s and 2s + 1 of the name (PS).
struct Group0A {
  static constexpr GroupKind kKind{0, false};
  Switches switches = {};
  std::optional<BytePair> frequencies = {};
  std::optional<BytePair> characters = {};

  bool operator==(const Group0A&) const = default;
};
struct Group0B {
  static constexpr GroupKind kKind{0, true};
  Switches switches = {};
  std::optional<BytePair> characters = {};

  bool operator==(const Group0B&) const = default;
};

struct Group1A {
  static constexpr GroupKind kKind{1, false};
  std::optional<SlowLabel> label = {};
  std::optional<ItemNumber> item = {};

  bool operator==(const Group1A&) const = default;
};
struct Group1B {
  static constexpr GroupKind kKind{1, true};
  std::optional<ItemNumber> item = {};

  bool operator==(const Group1B&) const = default;
};

/// Characters 4s to 4s + 3 of the radio text. The flag turns with each text that is another.
struct Group2A {
  static constexpr GroupKind kKind{2, false};
  bool flag = false;  ///< A/B
  int segment = 0;    ///< 0 to 15
  FourBytes characters = {};

  bool operator==(const Group2A&) const = default;
};
/// Characters 2s and 2s + 1.
struct Group2B {
  static constexpr GroupKind kKind{2, true};
  bool flag = false;
  int segment = 0;
  std::optional<BytePair> characters = {};

  bool operator==(const Group2B&) const = default;
};

/// In which kind of group an application is, and what it says of itself.
struct Group3A {
  static constexpr GroupKind kKind{3, false};
  static constexpr std::uint16_t kTrafficMessages = 0xCD46;
  GroupKind carrier = {};
  std::optional<std::uint16_t> message = {};  ///< for traffic messages a `TrafficTable` or its like
  std::uint16_t application = 0;              ///< its identification (AID)

  bool operator==(const Group3A&) const = default;
};

/// The time at the edge of a minute.
struct Group4A {
  static constexpr GroupKind kKind{4, false};
  using Minute = std::chrono::sys_time<std::chrono::minutes>;
  int day = 0;                ///< modified Julian day of UTC, 17 bits
  int hour = 0;               ///< UTC
  int minute = 0;             ///< UTC
  int offset_half_hours = 0;  ///< what local time is ahead, -31 to 31

  [[nodiscard]] static Group4A Of(Minute utc, int offset_half_hours);
  /// Nullopt if there is no such hour or minute.
  [[nodiscard]] std::optional<Minute> Utc() const;

  bool operator==(const Group4A&) const = default;
};

/// Four bytes of a transparent data channel.
struct Group5A {
  static constexpr GroupKind kKind{5, false};
  int channel = 0;  ///< 0 to 31
  FourBytes bytes = {};

  bool operator==(const Group5A&) const = default;
};
struct Group5B {
  static constexpr GroupKind kKind{5, true};
  int channel = 0;
  std::optional<BytePair> bytes = {};

  bool operator==(const Group5B&) const = default;
};

/// In house: the station's own affair.
struct Group6A {
  static constexpr GroupKind kKind{6, false};
  int own = 0;  ///< 5 bits
  FourBytes bytes = {};

  bool operator==(const Group6A&) const = default;
};
struct Group6B {
  static constexpr GroupKind kKind{6, true};
  int own = 0;
  std::optional<BytePair> bytes = {};

  bool operator==(const Group6B&) const = default;
};

/// A traffic message, or a part of one.
struct Group8A {
  static constexpr GroupKind kKind{8, false};
  bool tuning = false;  ///< T: no message, but something of the service
  bool single = false;  ///< F: the whole message is in this group
  int duration = 0;     ///< 3 bits; of a message in several groups its index
  bool diversion = false;
  bool direction = false;
  int extent = 0;  ///< 3 bits
  int event = 0;   ///< 11 bits
  std::uint16_t location = 0;

  bool operator==(const Group8A&) const = default;
};

/// Characters 4s to 4s + 3 of the name of the programme type (PTYN).
struct Group10A {
  static constexpr GroupKind kKind{10, false};
  bool flag = false;  ///< A/B: turns with each name that is another
  int segment = 0;    ///< 0 or 1
  FourBytes characters = {};

  bool operator==(const Group10A&) const = default;
};

/// Something of another network, as the variant says: two characters of its name, two codes of
/// frequencies, `Linkage`, `TypeAndAnnouncement` or `ItemNumber`.
struct Group14A {
  static constexpr GroupKind kKind{14, false};
  // 0 to 3: characters 2v and 2v + 1 of the name.
  static constexpr int kLastName = 3;
  static constexpr int kFrequencies = 4;  ///< as 0A has them by method A
  // 5 to 8: an FM frequency of this network and the one of the other that goes with it.
  static constexpr int kFirstPair = 5;
  static constexpr int kLastPair = 8;
  static constexpr int kAmPair = 9;  ///< the same with one of LF or MF
  static constexpr int kLinkage = 12;
  static constexpr int kTypeAndAnnouncement = 13;
  static constexpr int kItem = 14;
  bool tp = false;  ///< of the other network
  int variant = 0;  ///< 0 to 15
  std::optional<std::uint16_t> content = {};
  std::uint16_t pi = 0;  ///< of the other network

  bool operator==(const Group14A&) const = default;
};

/// A traffic announcement on another network begins or ends.
struct Group14B {
  static constexpr GroupKind kKind{14, true};
  bool tp = false;  ///< of the other network
  bool ta = false;
  std::uint16_t pi = 0;  ///< of the other network

  bool operator==(const Group14B&) const = default;
};

/// Switches in a hurry; the second block comes twice.
struct Group15B {
  static constexpr GroupKind kKind{15, true};
  Switches switches = {};

  bool operator==(const Group15B&) const = default;
};

/// `Body` is any of the structures with a `kKind` above. Of a value that does not fit into its
/// field the upper bits are lost.
template <typename Body>
[[nodiscard]] Group Build(const Head& head, const Body& body);
/// Nullopt if the group is of another kind, or if a block is missing without which it says nothing:
/// the second, and any that has a field that is not optional.
template <typename Body>
[[nodiscard]] std::optional<Body> Take(const HeardGroup& group);

}  // namespace corvalis::air
