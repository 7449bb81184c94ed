#pragma once

namespace corvalis {

/// Key codes as a form gets them: a Windows-1252 character, or one of these.
inline constexpr int kKeyCancelled = 0;  ///< what a rule puts in place of a key that it refuses
inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyPaste = 22;  ///< Ctrl+V comes as this control character
inline constexpr int kKeyEscape = 27;

}  // namespace corvalis
