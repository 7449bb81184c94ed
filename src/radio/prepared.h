#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "air/af_codes.h"

namespace corvalis::radio {

/// What a station file puts on the air once everything in it has been sent: values as the groups
/// carry them, texts as the bytes that go out. Numbers of rows count from 0, as on the screens.
struct Prepared {
  enum class Shows { kText, kDate, kHour };

  struct Name {
    int page = 0;  ///< 0 also where the Coder model has no pages
    int row = 0;
    std::string bytes;           ///< always 8
    int seconds = 0;             ///< 0: the only name, as none takes turns
    Shows shows = Shows::kText;  ///< the Coder may put date or hour in its place
  };
  struct Text {
    int row = 0;
    std::string bytes;  ///< up to 64, without the blanks at the end
    int seconds = 0;
  };
  struct FrequencyList {
    int list = 0;
    air::AfCodes codes{};  ///< the count first
    int left_out = 0;      ///< frequencies that find no room among them
  };
  struct ProgrammeItem {
    int day = 0;  ///< of the month
    std::chrono::minutes time{0};
    int code = 0;  ///< day, hour and minute in 5, 5 and 6 bits
  };
  struct Linkage {
    bool active = false;
    bool extended_generic = false;
    bool international = false;
    int set = 0;
  };
  struct Network {
    int list = 0;
    int pi = 0;
    std::string name;  ///< always 8 bytes
    bool tp = false;
    bool ta = false;
    int pty = 0;
    int item = 0;                     ///< its programme item number
    std::vector<std::uint8_t> codes;  ///< its own frequencies on FM, without count and fillers
    /// A frequency on FM here, and one there: on FM, or on LF or MF.
    struct Pair {
      std::uint8_t here = 0;
      std::uint8_t there = 0;
      bool am = false;
    };
    std::vector<Pair> pairs;
  };
  struct Channel {
    int number = 0;                 ///< 0 to 31
    std::optional<int> subchannel;  ///< of channel 0
    std::uint32_t bits = 0;         ///< of a subchannel 12 of address and 20 of command
  };
  struct Page {
    int number = 0;
    /// Without the blanks at the end. Empty where the page's own file can't be read: nobody knows
    /// what was prepared then.
    std::string bytes;
    int seconds = 0;
  };
  struct TrafficSystem {
    int table = 0;
    int service = 0;
    bool international = false;
    bool national = false;
    bool regional = false;
    bool urban = false;
  };
  struct TrafficMessage {
    int row = 0;
    int event = 0;
    int location = 0;
    int duration = 0;
    bool direction = false;
    int extent = 0;
    bool diversion = false;
  };
  struct Group {
    bool enabled;
    int repetitions;
  };
  static constexpr int kGroups = 32;
  static constexpr int kTypes = 32;

  std::string path;  ///< of the file, from the root

  int pi = 0;
  bool tp = false;
  bool ta = false;
  bool music = false;
  bool stereo = false;
  bool artificial_head = false;
  bool compressed = false;
  bool dynamic_pty = false;
  int pty = 0;
  std::array<std::string, kTypes> type_names;  ///< by type, 8 bytes; empty: it has none of its own
  /// That take turns, page by page. With pages there are those of each that may be on the air.
  std::vector<Name> names;
  std::vector<Text> texts;  ///< that take turns
  bool method_a = false;
  std::vector<FrequencyList> lists;  ///< that go out: in the order of their numbers
  int offset_half_hours = 0;         ///< what local time is ahead of UTC
  std::vector<ProgrammeItem> items;
  std::optional<int> ecc;
  std::optional<int> language;
  std::optional<Linkage> linkage;  ///< of the station itself
  std::vector<Network> networks;   ///< that are enabled
  std::vector<Channel> channels;   ///< that are enabled
  std::vector<Page> pages;         ///< that have a text, or may have one
  std::optional<TrafficSystem> traffic_system;
  std::vector<TrafficMessage> traffic_messages;
  /// 0A to 15A, then 0B to 15B; nothing where the Coder model has no group sequence.
  std::optional<std::array<Group, kGroups>> groups;

  /// True if the group goes out, as far as the file says. 4A does so once a minute, whatever its
  /// repetitions; with no other group on, every group is a 0A.
  [[nodiscard]] bool On(int group) const;
  /// The programme item that is on: of that day the latest whose time has come; 0 if there is none.
  [[nodiscard]] int ItemAt(std::chrono::local_time<std::chrono::minutes> local) const;
};

/// Reads a station file. It is only read: neither it nor anything beside it is written or made, no
/// link is opened. Returns an empty text, or why `prepared` is not to be used in one sentence for
/// people.
///
/// The platform must be installed, and the data classes of the program must not be in use.
[[nodiscard]] std::string ReadPrepared(const std::string& path, Prepared& prepared);

}  // namespace corvalis::radio
