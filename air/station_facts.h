#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace corvalis::air {

/// What a station prepared for the air, whoever holds it: values as the groups carry them, texts as
/// the bytes that go out. An `item` is what its holder calls a thing in words for people, such as
/// "RT 03"; it is shown and means nothing else.
struct StationFacts {
  /// A text on the air for so many seconds, and then the next. Texts that never go out (without a
  /// rotation time, where others have one) are not among the facts.
  struct Text {
    std::string item;
    int seconds = 0;
    std::string bytes;
  };
  /// Its code bytes, the count first.
  struct FrequencyList {
    std::string item;
    std::vector<std::uint8_t> codes;
    int left_out = 0;  ///< frequencies that found no room among the codes, if that is known
  };
  struct Network {
    std::string item;
    int pi = 0;
    bool tp = false;
    bool ta = false;
    std::string name;
    std::vector<std::uint8_t> codes;  ///< of its own frequencies, without a count, fillers or 250
    int pairs = 0;                    ///< of a frequency here and one there
  };
  struct Linkage {
    bool active = false;
    int set = 0;
  };
  struct TrafficSystem {
    int table = 0;
    bool anywhere = false;  ///< it has a scope
  };
  struct TrafficMessage {
    std::string item;
    int event = 0;  ///< 0: there is no message
    int location = 0;
  };
  struct Group {
    bool enabled = false;
    int repetitions = 0;
  };
  static constexpr int kGroups = 32;
  static constexpr int kB = 16;  ///< and a number: its B group

  std::array<Group, kGroups> groups{};  ///< 0A to 15A, then 0B to 15B

  int pi = 0;
  int pty = 0;
  bool tp = false;
  bool ta = false;
  std::optional<int> ecc;       ///< if it was chosen
  std::optional<int> language;  ///< the same
  /// Names that take turns with one another: one set, or one of each page that may be on the air.
  std::vector<std::vector<Text>> names;
  std::vector<Text> texts;  ///< that take turns
  std::vector<FrequencyList> lists;
  bool time = false;      ///< a clock time is or will be sent
  std::string type_name;  ///< of the present programme type; empty: it has none of its own
  bool items = false;     ///< programme items are prepared
  std::optional<Linkage> linkage;
  std::vector<Network> networks;  ///< that are enabled
  std::optional<TrafficSystem> traffic_system;
  std::vector<TrafficMessage> traffic_messages;
  bool channels = false;  ///< data channels are enabled
  bool pages = false;     ///< in-house pages have text

  /// True if the group goes out at all. 4A does at the edge of a minute, whatever its repetitions.
  [[nodiscard]] bool On(int group) const {
    const Group& of = groups.at(static_cast<std::size_t>(group));
    constexpr int kClockTime = 4;
    return of.enabled && (of.repetitions > 0 || group == kClockTime);
  }
};

}  // namespace corvalis::air
