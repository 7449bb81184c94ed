#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "coder/coder.h"
#include "coder/frames.h"
#include "coder/on_air.h"
#include "coder/on_air/group.h"

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

/// A Coder on the air, and somebody who writes down what the groups say, by the layout of each kind
/// alone. A day of it takes no time.
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

  Group Next() {
    const Group group = on_air.Next(GroupStart(groups++));
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
  static unsigned Bits(std::uint16_t word, int low, int count) {
    return word >> low & ((1U << count) - 1);
  }
  static std::string Hex(unsigned value, int digits) {
    char text[9];
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return text;
  }
  static std::string Two(std::uint16_t word) {
    return {static_cast<char>(word >> 8), static_cast<char>(word & 0xFF)};
  }
  // Gathers the segments of a text, and gives it when the last one has come in order.
  void Gather(const std::string& subject, unsigned segment, const std::string& characters,
              bool last) {
    std::string& text = gathered_[subject];
    if (segment == 0) text.clear();
    if (text.size() != segment * characters.size()) text = "out of order";
    text += characters;
    if (last) said[subject].push_back(text);
  }

  void Hear(const Group& group) {
    const auto& [pi, second, third, fourth] = group.blocks;
    const unsigned type = Bits(second, 12, 4);
    const bool b = Bits(second, 11, 1) != 0;
    const unsigned own = Bits(second, 0, 5);
    const std::string name = std::to_string(type) + (b ? "B" : "A");
    said["group"].push_back(name);
    if (b && third != pi) said[name].push_back("no PI in block 3");
    const std::string four = Two(third) + Two(fourth);
    if (type == 0) Gather("PS", own & 3, Two(fourth), (own & 3) == 3);
    if (name == "0A") said["AF"].push_back(Hex(third, 4));
    if (type == 2 || name == "10A") {
      const std::string characters = b ? Two(fourth) : four;
      const unsigned segment = own & 15;
      const std::string subject = type == 10 ? "PTYN" : b ? "RT short" : "RT";
      const std::string flag = (own & 16) != 0 ? "1" : "0";
      const bool last =
          type == 10 ? segment == 1 : segment == 15 || characters.find('\r') != std::string::npos;
      // Every character of a segment keeps the flag in mind.
      Gather(subject, segment, characters, last);
      if (flag_[subject] != flag && segment > 0) said[subject].push_back("flag turned inside");
      flag_[subject] = flag;
      if (last) said[subject].back() = flag + said[subject].back();
    }
    if (type == 4) {
      const unsigned offset = Bits(fourth, 0, 5);
      said[name].push_back(std::to_string(Bits(second, 0, 2) << 15 | Bits(third, 1, 15)) + " " +
                           std::to_string(Bits(third, 0, 1) << 4 | Bits(fourth, 12, 4)) + ":" +
                           std::to_string(Bits(fourth, 6, 6)) +
                           (Bits(fourth, 5, 1) != 0 ? " -" : " +") + std::to_string(offset));
    }
    if (type == 1 || type == 3 || type == 5 || type == 6 || type == 8 || type >= 14) {
      said[name].push_back(Hex(own, 2) + " " + (b ? "" : Hex(third, 4) + " ") + Hex(fourth, 4));
    }
  }

  std::map<std::string, std::string> gathered_;
  std::map<std::string, std::string> flag_;
};

}  // namespace corvalis::coder
