#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvalis {

/// The texts that radios show: names, radio texts, names of types, in-house pages. A station file
/// and the screens have them in Windows-1252, radios have a table of their own. A Coder may
/// translate them itself; for one that does not, the station file has "Radio Characters".
///
/// With that key "On" each byte becomes the one that radios have for its character, or the plain
/// character that comes nearest ("?" where there is none): always one for one. Control characters
/// stay as they are. With "Off" nothing changes.

/// A text on its way to the Coder.
[[nodiscard]] std::string ToCoder(std::string_view text);

/// Bytes on their way back. What Windows-1252 has comes back as it was; for other characters of
/// radios comes the plain one.
[[nodiscard]] std::string FromCoder(std::string_view bytes);

/// What becomes of a character, both in UTF-8.
struct RadioShown {
  std::string prepared;
  std::string shown;
  bool differs = false;  ///< a control character never does
};

/// What radios show of a text that was sent, if the Coder changes nothing in it: one for each byte.
[[nodiscard]] std::vector<RadioShown> ShownByRadios(std::string_view text);

}  // namespace corvalis
