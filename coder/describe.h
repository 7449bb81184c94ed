#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "coder/coder.h"

namespace corvalis::coder {

/// One line of words, without a line end, for what the Coder took, such as
///
///     ENQ
///     PI <- 5201 (country 5, coverage 2, programme 01)
///     Enable 3 read -> 0105 (group 3A on, repetitions 5)
///     PSN page 2 row 10 <- 205RADIO    (rotation 5)
///     refused, error 1 (checksum wrong): 02 01 00 35 32 30 31 03 00
[[nodiscard]] std::string Describe(const Event& event);

/// The memory in words, one line with a line end for each single value and count, and for each item
/// of a list that has been written: name, place in two hexadecimal digits, bytes of the body, what
/// they say unless they speak for themselves, and the body as a text in which what is not printable
/// is a dot:
///
///     PI 00: 35 32 30 31 (country 5, coverage 2, programme 01)  "5201"
///     Enable 13: 30 31 30 35 (group 3B on, repetitions 5)  "0105"
///     PSN page 02 row 0A: 32 30 35 52 41 44 49 4F 20 20 20 (rotation 5)  "205RADIO   "
///     ECC 00: 45 30 (never written)  "E0"
///
/// A single value that still is as it left the factory says so. An other network's TA is told with
/// its list.
[[nodiscard]] std::string Dump(const Coder& coder);

/// What stands behind the bytes of a value that was never written, the last of its words.
inline constexpr std::string_view kNeverWritten = "never written";

/// What an item is called in the memory's words: "PI 00", "PSN page 02 row 0A".
[[nodiscard]] std::string ItemName(const Command& command, int number);

/// Calls `visit` for every item there is in a Coder of these sizes, in the order of the memory's
/// words.
void ForEachItem(const Counts& sizes,
                 const std::function<void(const Command& command, int number)>& visit);

/// Bytes as characters; what is not printable is a dot.
[[nodiscard]] std::string Printable(std::span<const std::uint8_t> bytes);

/// Bytes as two upper-case hexadecimal digits each, blanks between.
[[nodiscard]] std::string HexText(const Bytes& bytes);

}  // namespace corvalis::coder
