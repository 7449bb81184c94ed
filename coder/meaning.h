#pragma once

#include <string>

#include "coder/commands.h"

namespace corvalis::coder {

/// What the body of an item says, in words such as "country 5, coverage 2, programme 01"; empty
/// where the body speaks for itself. A body that the Coder would not take gives nonsense, no
/// failure.
[[nodiscard]] std::string Meaning(const Command& command, int number, const std::string& body);

/// The frequencies in the codes of an alternative frequency list, two hexadecimal digits each:
/// "100.0, 87.625, 153 kHz" (MHz where nothing else is said). Fillers are left out.
[[nodiscard]] std::string Frequencies(std::string_view codes);

}  // namespace corvalis::coder
