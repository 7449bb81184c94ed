#pragma once

#include <string>
#include <string_view>

namespace corvalis {

/// Keys of the configuration file that `configData` names at this moment. Each call is one whole
/// operation and lets pending events run.

/// The value of the key, at most 1023 bytes; empty if the key or the file is missing.
[[nodiscard]] std::string ReadIniKey(std::string_view section, std::string_view key);

/// Writes one key, creating file and section where they are missing. A failure goes unnoticed.
void WriteIniKey(std::string_view section, std::string_view key, std::string_view value);

/// A switch of its own key: true for "On" alone. Written as "On" or "Off".
[[nodiscard]] bool ReadIniSwitch(std::string_view section, std::string_view key);
void WriteIniSwitch(std::string_view section, std::string_view key, bool on);

}  // namespace corvalis
