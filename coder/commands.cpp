#include "coder/commands.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace corvalis::coder {

namespace {

bool IsDigit(int c) { return c >= '0' && c <= '9'; }

bool Fits(char place, std::uint8_t byte) {
  switch (place) {
    case 'B':
      return byte == '0' || byte == '1';
    case 'D':
      return IsDigit(byte);
    case 'H':
      return IsDigit(byte) || (byte >= 'A' && byte <= 'F');
    case '*':
      return true;
    default:
      return byte == static_cast<std::uint8_t>(place);
  }
}

// Year, month, day, weekday from Monday 1, hour, minute, the numbers of the two strings that carry
// date and hour, and the local offset in half hours plus 24.
bool ClockTimeExists(std::span<const std::uint8_t> body) {
  const auto two = [&body](std::size_t at) { return (body[at] - '0') * 10 + body[at + 1] - '0'; };
  const int year = two(0) < 30 ? 2000 + two(0) : 1900 + two(0);
  const std::chrono::year_month_day date{std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(two(2))),
                                         std::chrono::day(static_cast<unsigned>(two(4)))};
  return date.ok() && body[6] >= '1' && body[6] <= '7' && two(7) <= 23 && two(9) <= 59 &&
         two(15) <= 48;
}

bool RepetitionsFit(std::span<const std::uint8_t> body) {
  constexpr int kMostRepetitions = 99;
  const auto digit = [&body](std::size_t at) {
    return IsDigit(body[at]) ? body[at] - '0' : body[at] - 'A' + 10;
  };
  return digit(2) * 16 + digit(3) <= kMostRepetitions;
}

constexpr std::array kCommands = {
    Command{kPi, "PI", 4, 0, true, true, "HHHH", "1000"},
    Command{kTp, "TP", 1, 0, true, true, "B", "0"},
    Command{kDi, "DI", 1, 0, true, true, "H", "1"},
    Command{kAddress, "Address", 5, 1, false, true, "", ""},
    Command{kEnable, "Enable", 4, 31, true, true, "0BHH", "0000", RepetitionsFit},
    Command{kPty, "PTY", 2, 0, true, true, "BH", "00"},
    Command{kTa, "TA", 1, 0, true, true, "B", "0"},
    Command{kMs, "M/S", 1, 0, true, true, "B", "1"},
    Command{kCt, "CT", 17, 0, true, true, "DDDDDDDDDDDDDDDDD", "00010160000080924",
            ClockTimeExists},
    // 0 to 30 are the channels 1 to 31, 32 to 130 the subchannels of channel 0.
    Command{kTdc, "TDC", 9, 130, true, true, "B", "000000000"},
    Command{kEcc, "ECC", 2, 0, true, true, "HH", "E0"},
    Command{kLic, "LIC", 2, 0, true, true, "HH", "00"},
    Command{kLi, "LI", 6, 0, true, true, "BBBHHH", "000000"},
};

}  // namespace

bool Command::Accepts(std::span<const std::uint8_t> body) const {
  if (body.size() != body_bytes) return false;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (!Fits(pattern[i], body[i])) return false;
  }
  return rule == nullptr || rule(body);
}

bool Command::EndTellsRequest() const {
  return request_bytes < pattern.size() && pattern[request_bytes] != '*';
}

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(std::uint8_t code) {
  const auto* found = std::ranges::find(kCommands, code, &Command::code);
  return found == kCommands.end() ? nullptr : found;
}

}  // namespace corvalis::coder
