#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "air/group.h"

namespace corvalis::air {

/// A group as a line of text, without its end: "5201 0408 E0CD 4C41". A block that is missing is
/// "----".
[[nodiscard]] std::string HexLine(const Group& group);
[[nodiscard]] std::string HexLine(const HeardGroup& group);

/// The group that a line holds; nullopt if it holds none, as a heading or a comment does. Digits
/// may be small, blanks and tabs more or none; what stands behind the fourth block is not looked
/// at.
[[nodiscard]] std::optional<HeardGroup> ReadHexLine(std::string_view line);

}  // namespace corvalis::air
