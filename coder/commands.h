#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace corvalis::coder {

inline constexpr std::uint8_t kPi = 0x01;
inline constexpr std::uint8_t kTp = 0x02;
inline constexpr std::uint8_t kDi = 0x04;
inline constexpr std::uint8_t kAddress = 0x08;
inline constexpr std::uint8_t kEnable = 0x09;
inline constexpr std::uint8_t kPty = 0x0D;
inline constexpr std::uint8_t kTa = 0x0E;
inline constexpr std::uint8_t kMs = 0x0F;
inline constexpr std::uint8_t kCt = 0x10;
inline constexpr std::uint8_t kTdc = 0x11;
inline constexpr std::uint8_t kEcc = 0x19;
inline constexpr std::uint8_t kLic = 0x1A;
inline constexpr std::uint8_t kLi = 0x1B;

/// One line of the Coder's operating instructions: what a command looks like and takes.
struct Command {
  std::uint8_t code;
  std::string_view name;
  std::size_t body_bytes;  ///< of a write frame and of a read's answer
  int last_index;          ///< the biggest index byte it takes
  bool readable;
  bool writable;
  /// What each body byte may be: `B` is "0" or "1", `H` an upper-case hexadecimal digit, `D` a
  /// decimal digit, `*` anything, and any other character itself. Bytes past its end may be
  /// anything.
  std::string_view pattern;
  /// The body of every item when the Coder leaves the factory.
  std::string_view factory;
  /// A rule of the whole body beyond `pattern`, or null.
  bool (*rule)(std::span<const std::uint8_t> body) = nullptr;
  /// Body bytes of a read request.
  std::size_t request_bytes = 0;

  /// False for a body whose length, characters or values the command does not take.
  [[nodiscard]] bool Accepts(std::span<const std::uint8_t> body) const;
  /// True if no write frame can have an end byte where a read request has it.
  [[nodiscard]] bool EndTellsRequest() const;
};

[[nodiscard]] std::span<const Command> Commands();

/// Null for a code the Coder does not know.
[[nodiscard]] const Command* FindCommand(std::uint8_t code);

}  // namespace corvalis::coder
