#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "send/carried_text.h"

namespace corvalis::send {

/// What a command is about.
enum class Item : std::uint8_t {
  kRt,      ///< a radio text
  kPs,      ///< a programme service name
  kPsPage,  ///< one of a page
  kPage,    ///< the page of names on the air
  kTa,
  kTp,
  kPty,
  kMs,
  kPtyn,  ///< the name of a programme type
  kCt,    ///< the clock time
  kEonTa,
  kTmc,
  kRaw,   ///< a frame as it stands
  kList,  ///< whole lists, as the station file has them
};

/// The numbers of a traffic message, in the order of a line.
struct TmcNumbers {
  int location = 0;  ///< 0 to 65535
  int event = 0;     ///< 0 to 2047
  int duration = 0;  ///< 0 to 7
  bool direction = false;
  int extent = 0;  ///< 0 to 7
  bool diversion = false;
  int repetition = 0;  ///< 0 to 15
};

/// One line of the language that `corvalis-send` understands. Rows, lists and pages count from 0,
/// as on the screens.
struct Command {
  Item item = Item::kRt;
  bool read = false;        ///< from the Coder; else to it
  int page = 0;             ///< of a name on a page, 0 to 15
  int number = 0;           ///< of the item in its list, 0 to 255
  int value = 0;            ///< programme type, page on the air
  bool on = false;          ///< TA, TP, TA of another network; music
  std::string text;         ///< as the line carries it
  std::optional<int> time;  ///< rotation time, 0 to 99; none: as the file has it
  TmcNumbers tmc;
  std::vector<std::uint8_t> frame;  ///< command, index and body of `kRaw`
  std::vector<std::string> lists;   ///< of `kList`; empty: as the file selects
  bool terse = false;               ///< in the way of a play-out system, and answered so
  std::string line;                 ///< as it came

  /// True for the announcement that must not stay on the air.
  [[nodiscard]] bool EndsTa() const { return item == Item::kTa && !read && !on; }
  /// The item in words, "rt 1".
  [[nodiscard]] std::string Named() const;
  /// What this is the newest value of, in words; empty for what replaces nothing.
  [[nodiscard]] std::string Key() const;
};

/// A command, or in one sentence what is wrong with the line. A line of blanks or a comment is
/// neither.
struct Parsed {
  std::optional<Command> command;
  std::string error;
  bool terse = false;  ///< the line was one of a play-out system's, good or bad
};

/// Reads a command given in words. `rules` hold for its text where the words name none.
[[nodiscard]] Parsed ParseWords(const std::vector<std::string>& words, TextRules rules = {});
/// Reads a line: words as in a shell, or what play-out systems write, as RT=text.
[[nodiscard]] Parsed ParseLine(std::string_view line, TextRules rules = {});

/// The commands, a line each, for the help.
[[nodiscard]] std::string CommandsInWords();

}  // namespace corvalis::send
