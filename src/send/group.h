#pragma once

#include <string>

namespace corvalis::send {

/// Gives the file at `path` to a group, by its name. Returns an empty text, or why not in a
/// sentence.
[[nodiscard]] std::string GiveToGroup(const std::string& path, const std::string& group);

}  // namespace corvalis::send
