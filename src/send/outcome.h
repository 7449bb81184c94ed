#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace corvalis::send {

/// What became of a command.
struct Outcome {
  enum class Kind : std::uint8_t {
    kDone,    ///< acknowledged; on a one-way link: written
    kFailed,  ///< the Coder refused, or the link failed
    kUnfit,   ///< it can't be done at all
    kNoLine,  ///< the line is not there, or another program has it
  };
  using Value = std::variant<int, bool, std::string>;

  Kind kind = Kind::kDone;
  std::int16_t error = 0;  ///< `LinkError` of `kFailed`
  std::string words = {};  ///< why not, in UTF-8 as all texts here
  std::string read = {};   ///< what was read, as the line or lines that would send it
  std::vector<std::pair<std::string, Value>> values = {};  ///< the same by name
};

/// True for what a Coder refuses however often it is sent: the item's fault, not the line's.
[[nodiscard]] constexpr bool StaysRefused(std::int16_t error) {
  constexpr std::array<std::int16_t, 7> kRefusals = {2, 3, 6, 7, 9, 10, 11};
  return std::ranges::find(kRefusals, error) != kRefusals.end();
}

/// The exit code of the program for an outcome.
[[nodiscard]] constexpr int ExitCode(Outcome::Kind kind) {
  switch (kind) {
    case Outcome::Kind::kDone:
      return 0;
    case Outcome::Kind::kFailed:
      return 1;
    case Outcome::Kind::kUnfit:
      return 2;
    case Outcome::Kind::kNoLine:
      break;
  }
  return 3;
}

}  // namespace corvalis::send
