#pragma once

#include <string>

namespace corvalis::radio {

/// From now on the texts are those of the language that a station file names, as far as its
/// language file has them; the others are the English ones. Both files are only read. For a program
/// that has no texts of its own loaded; the platform must be installed.
void TakeLanguage(const std::string& station_file);

}  // namespace corvalis::radio
