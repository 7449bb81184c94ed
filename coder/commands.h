#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "coder/counts.h"

namespace corvalis::coder {

inline constexpr std::uint8_t kPi = 0x01;
inline constexpr std::uint8_t kTp = 0x02;
inline constexpr std::uint8_t kPsn = 0x03;
inline constexpr std::uint8_t kDi = 0x04;
inline constexpr std::uint8_t kAf = 0x05;
inline constexpr std::uint8_t kPin = 0x06;
inline constexpr std::uint8_t kRt = 0x07;
inline constexpr std::uint8_t kAddress = 0x08;
inline constexpr std::uint8_t kEnable = 0x09;
inline constexpr std::uint8_t kRtCount = 0x0A;
inline constexpr std::uint8_t kPinCount = 0x0B;
inline constexpr std::uint8_t kAfCount = 0x0C;
inline constexpr std::uint8_t kPty = 0x0D;
inline constexpr std::uint8_t kTa = 0x0E;
inline constexpr std::uint8_t kMs = 0x0F;
inline constexpr std::uint8_t kCt = 0x10;
inline constexpr std::uint8_t kTdc = 0x11;
inline constexpr std::uint8_t kIh = 0x12;
inline constexpr std::uint8_t kIhCount = 0x13;
inline constexpr std::uint8_t kPsnCount = 0x14;
inline constexpr std::uint8_t kEonCount = 0x15;
inline constexpr std::uint8_t kEon = 0x16;
inline constexpr std::uint8_t kPtyn = 0x17;
inline constexpr std::uint8_t kEonTa = 0x18;
inline constexpr std::uint8_t kEcc = 0x19;
inline constexpr std::uint8_t kLic = 0x1A;
inline constexpr std::uint8_t kLi = 0x1B;
inline constexpr std::uint8_t kPsnPage = 0x1C;
inline constexpr std::uint8_t kPsnPageActive = 0x1D;
inline constexpr std::uint8_t kPsnPageCount = 0x1E;
inline constexpr std::uint8_t kPsnPlan = 0x1F;
inline constexpr std::uint8_t kPsnPlanCount = 0x20;
inline constexpr std::uint8_t kTmcSystem = 0x21;
inline constexpr std::uint8_t kTmc = 0x22;
inline constexpr std::uint8_t kTmcCount = 0x23;

/// The number of a page's row or block is page * 256 + row.
inline constexpr int kPageStep = 256;
/// An in-house page's end frame is kept behind its 16 blocks.
inline constexpr int kIhEnd = 16;

/// One line of the Coder's operating instructions: what a command looks like and takes.
///
/// A pattern has a character for each byte: `B` is "0" or "1", `Q` a digit to 3, `O` to 7, `D` to
/// 9, `H` an upper-case hexadecimal digit, `P` the page digit from "0" to "?" (15), `*` anything,
/// and any other character itself.
///
/// An item's number is the index byte or, where a request has digits, their value * 256 + the index
/// byte. These digits stand at the front of every body of the command.
struct Command {
  std::uint8_t code;
  std::string_view name;
  std::size_t body_bytes;  ///< of a write frame and of a read's answer
  /// Of the body; bytes past its end may be anything.
  std::string_view pattern = {};
  /// The body of every item when the Coder leaves the factory, behind the number's digits and
  /// before blanks.
  std::string_view factory = {};
  int items = 1;                 ///< by index byte
  int Counts::*count = nullptr;  ///< tells the items in place of `items`
  int Counts::*pages = nullptr;  ///< there are these by the number's digits; null: no limit
  bool readable = true;
  bool writable = true;
  /// Pattern of a read request's body: the number's digits, then blanks where the request is as
  /// long as the write frame. There the index byte is a marker, 1 on writing and 0 on reading.
  std::string_view request = {};
  int Counts::*tells = nullptr;  ///< a count command: what its answer tells in hexadecimal digits
  std::uint8_t part_of = 0;      ///< its item is a byte of the item of this command
  std::size_t part_at = 0;
  /// A rule of the whole body beyond `pattern`: a `Refusal`, or 0.
  int (*rule)(std::span<const std::uint8_t> body, const Counts& counts) = nullptr;

  /// True for the short frame that ends an in-house page.
  [[nodiscard]] bool Marked() const { return request.size() == body_bytes; }
  /// True if an index byte, or digits, tell which of several items is meant.
  [[nodiscard]] bool IsList() const { return items > 1 || count != nullptr || pages != nullptr; }
  /// Why the Coder does not take this body of a write frame or of a request: a `Refusal`, or 0.
  [[nodiscard]] int Judge(std::span<const std::uint8_t> body, bool read,
                          const Counts& counts) const;
  /// The number of the item that a frame means; nullopt if its digits are none.
  [[nodiscard]] std::optional<int> Number(std::uint8_t index,
                                          std::span<const std::uint8_t> body) const;
  /// True if there is an item of this number.
  [[nodiscard]] bool Holds(int number, const Counts& counts) const;
  /// The body of an item when the Coder leaves the factory.
  [[nodiscard]] std::vector<std::uint8_t> Factory(int number) const;
};

/// By code, each once but for the in-house pages: their short frame follows as a line of its own.
[[nodiscard]] std::span<const Command> Commands();

/// The line that has the item `number` of a command; null for an unknown code or number.
[[nodiscard]] const Command* FindItem(std::uint8_t code, int number, const Counts& counts);

}  // namespace corvalis::coder
