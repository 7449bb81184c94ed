#pragma once

#include <array>
#include <string>
#include <vector>

#include "air/reception.h"
#include "platform/clock.h"
#include "radio/prepared.h"

namespace corvalis::radio {

/// Which time of the air is which of this machine's clock.
class AirTime {
 public:
  /// It is both now. What has been told of the past changes only if the two have drifted apart.
  void Set(air::AirSeconds air, DateTime local);
  [[nodiscard]] air::AirSeconds Air() const { return air_; }
  [[nodiscard]] DateTime Local() const { return local_; }
  /// By this machine's clock.
  [[nodiscard]] DateTime At(air::AirSeconds when) const;

 private:
  bool set_ = false;
  air::AirSeconds air_ = 0;
  DateTime local_{};
  air::AirSeconds fixed_air_ = 0;
  DateTime fixed_local_{};
};

/// What the face of a radio shows, all of it in words. UTF-8.
struct Face {
  /// Something that is shown. What is not heard says so in its words.
  struct Shown {
    std::string name;
    std::string text;
    air::Hearing hearing{};

    bool operator==(const Shown&) const = default;
  };
  struct Lamp {
    std::string name;
    std::string words;  ///< "on", "speech", "not heard yet"
    bool lit = false;
    bool announces = false;  ///< the whole audience hears it: traffic

    bool operator==(const Lamp&) const = default;
  };
  struct Text {
    std::string time;  ///< "14:03:07", by this machine's clock
    std::string text;

    bool operator==(const Text&) const = default;
  };
  struct Mark {
    double mhz = 0;
    std::string text;    ///< "98.4"
    bool tuned = false;  ///< of a transmitter that the others are alternatives to

    bool operator==(const Mark&) const = default;
  };
  enum NetworkColumn : std::size_t {
    kNetworkName,
    kNetworkPi,
    kNetworkType,
    kNetworkTp,
    kNetworkTa,
    kNetworkFrequencies,
    kNetworkLinkage,
    kNetworkItem,
    kNetworkColumns
  };
  struct Network {
    std::array<std::string, kNetworkColumns> cells;
    bool announces = false;

    bool operator==(const Network&) const = default;
  };
  /// Of a service for special receivers.
  struct Data {
    std::string what;
    std::string bytes;  ///< "41 42 43 44"
    std::string text;

    bool operator==(const Data&) const = default;
  };
  struct Group {
    std::string name;           ///< "0A"
    std::string words;          ///< "0A 54.5 %, prepared 50.0 %"
    double heard = 0;           ///< its share of the last minute, 0 to 1
    double prepared = 0;        ///< its share of the group sequence, 0 to 1
    bool has_prepared = false;  ///< there is a group sequence to compare with

    bool operator==(const Group&) const = default;
  };

  Shown name;                           ///< PS: eight characters, a dot for each that has not come
  std::vector<std::string> text_lines;  ///< RT: two or more, of 32 characters at most
  std::string name_state;               ///< "heard"
  Shown text;                           ///< RT in one line
  std::string text_state;               ///< "heard, A", "being heard, 12 of 64 characters"
  std::vector<Text> texts;              ///< the last whole ones, the latest in front
  std::vector<Lamp> lamps;
  std::vector<Shown> facts;               ///< PI, country, language, PTY ...
  std::vector<Mark> marks;                ///< AF on FM
  std::vector<std::string> marks_beside;  ///< AF on LF and MF: "1458 kHz"
  std::vector<std::string> methods;       ///< "Method A: 98.4, 95.7"
  std::vector<Network> networks;          ///< one with an announcement takes the top
  std::vector<Data> data;
  std::array<Group, air::kGroupKinds> groups;
  std::string traffic;  ///< "11.4 groups a second, 0.2 % of the blocks missing"

  bool operator==(const Face&) const = default;
};

/// `station` is the file that is compared; null: none.
[[nodiscard]] Face FaceOf(const air::Reception& heard, const Prepared* station,
                          const AirTime& time);

}  // namespace corvalis::radio
