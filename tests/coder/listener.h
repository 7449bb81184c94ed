#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "air/groups.h"
#include "air/hex_text.h"
#include "coder/coder.h"
#include "coder/frames.h"
#include "coder/on_air.h"

namespace corvalis::coder {

inline std::string Padded(std::string text, std::size_t length) {
  text.resize(length, ' ');
  return text;
}
inline std::string Digits(int value, int base) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[static_cast<std::size_t>(value / base)],
          kDigits[static_cast<std::size_t>(value % base)]};
}
inline std::string Name(int seconds, const std::string& text) {
  return Digits(seconds, 10) + Padded(text, 8);
}
inline std::string Rt(int seconds, const std::string& text) {
  return Digits(seconds, 10) + Padded(text, 64);
}

/// A Coder on the air, and somebody who writes down what the groups say. A day of it takes no time.
class Listener {
 public:
  using Lines = std::vector<std::string>;

  explicit Listener(const Counts& sizes = {}) : coder("?????", true, sizes) {}

  /// Puts an item into the memory.
  void Write(std::uint8_t command, int number, std::string_view body) {
    EXPECT_TRUE(coder.SetItem(command, number, Text(body))) << body;
  }
  /// Enables groups with one place each, in place of those before: {"0A", "14B"}.
  void Enable(const std::vector<std::string>& names) {
    for (int i = 0; i < kGroups; ++i) Write(kEnable, i, "0000");
    for (const std::string& name : names) {
      Write(kEnable, std::stoi(name) + (name.back() == 'B' ? 16 : 0), "0101");
    }
  }

  air::Group Next() {
    const air::Group group = on_air.Next(GroupStart(groups++));
    Hear(group);
    return group;
  }
  /// Listens for so many groups, or until so many seconds from the beginning.
  void Hear(int count) {
    while (count-- > 0) static_cast<void>(Next());
  }
  void HearUntil(double seconds) {
    while (GroupStart(groups) < std::chrono::duration<double>(seconds)) static_cast<void>(Next());
  }
  /// What has been said of a subject, and forgets it.
  Lines Said(const std::string& subject) { return std::exchange(said[subject], {}); }

  Coder coder;
  OnAir on_air{coder};
  std::uint64_t groups = 0;
  /// By subject: "PS" and "PTYN" each time whole, "RT" with its flag; by group what else it says;
  /// "group" the name of each.
  std::map<std::string, Lines> said;

 private:
  static std::string TextOf(const air::BytePair& pair) { return {pair.begin(), pair.end()}; }
  static std::string TextOf(const air::FourBytes& four) {
    return TextOf(*four.first) + TextOf(*four.second);
  }
  // Gathers the segments of a text, and gives it when the last one has come in order.
  void Gather(const std::string& subject, int segment, const std::string& characters, bool last) {
    std::string& text = gathered_[subject];
    if (segment == 0) text.clear();
    if (std::ssize(text) != segment * std::ssize(characters)) text = "out of order";
    text += characters;
    if (last) said[subject].push_back(text);
  }

  void GatherName(const air::Switches& switches, const air::BytePair& characters) {
    Gather("PS", switches.segment, TextOf(characters), switches.segment == 3);
  }
  // Every character of a segment keeps the flag in mind.
  void GatherFlagged(const std::string& subject, bool flag, int segment,
                     const std::string& characters, bool last) {
    Gather(subject, segment, characters, last);
    if (flag_[subject] != flag && segment > 0) said[subject].push_back("flag turned inside");
    flag_[subject] = flag;
    if (last) said[subject].back().insert(0, flag ? "1" : "0");
  }

  void Hear(const air::Group& sent) {
    const air::HeardGroup group = air::Heard(sent);
    const std::string name = air::HeadOf(group)->kind.Name();
    const std::string line = air::HexLine(sent);
    said["group"].push_back(name);
    const auto ends = [](const std::string& characters, int segment) {
      return segment == 15 || characters.find('\r') != std::string::npos;
    };
    if (const auto name_0a = air::Take<air::Group0A>(group)) {
      GatherName(name_0a->switches, *name_0a->characters);
      said["AF"].push_back(line.substr(10, 4));
    } else if (const auto name_0b = air::Take<air::Group0B>(group)) {
      GatherName(name_0b->switches, *name_0b->characters);
    } else if (const auto text = air::Take<air::Group2A>(group)) {
      const std::string four = TextOf(text->characters);
      GatherFlagged("RT", text->flag, text->segment, four, ends(four, text->segment));
    } else if (const auto part = air::Take<air::Group2B>(group)) {
      const std::string two = TextOf(*part->characters);
      GatherFlagged("RT short", part->flag, part->segment, two, ends(two, part->segment));
    } else if (const auto type = air::Take<air::Group10A>(group)) {
      GatherFlagged("PTYN", type->flag, type->segment, TextOf(type->characters),
                    type->segment == 1);
    } else if (const auto time = air::Take<air::Group4A>(group)) {
      const int offset = time->offset_half_hours;
      said[name].push_back(std::to_string(time->day) + " " + std::to_string(time->hour) + ":" +
                           std::to_string(time->minute) + (offset < 0 ? " " : " +") +
                           std::to_string(offset));
    } else {
      // The group's own five bits, and the blocks.
      const bool b = name.back() == 'B';
      if (b && sent.blocks[2] != sent.blocks[0]) said[name].push_back("no PI in block 3");
      said[name].push_back(Digits(sent.blocks[1] & 0x1F, 16) + line.substr(b ? 14 : 9));
    }
  }

  std::map<std::string, std::string> gathered_;
  std::map<std::string, bool> flag_;
};

}  // namespace corvalis::coder
