#pragma once

#include <string>
#include <string_view>

#include "coder/coder.h"

namespace corvalis::coder {

/// Everything a Coder holds, in words: the line "memory", its ID and whether it is addressed, a
/// line for each item as `Dump` tells it, the line "end of memory".
[[nodiscard]] std::string MemoryText(const Coder& coder);

/// Puts what `MemoryText` told into a Coder as it left the factory: ID, sizes, and each item that
/// was written. It is not addressed by that. Lines outside of the memory are passed over; of
/// several memories the last counts.
///
/// Returns an empty text, or what is wrong in a sentence that begins with the number of the line,
/// such as "line 12: ..."; the Coder is then as it was.
[[nodiscard]] std::string ReadMemory(std::string_view text, Coder& coder);

}  // namespace corvalis::coder
