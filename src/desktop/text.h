#pragma once

#include <QString>
#include <string>

#include "screen/text_box.h"

class QKeyEvent;

namespace corvalis::desktop {

/// A text of the program, Windows-1252, as the desktop shows it. The five bytes that the code page
/// leaves undefined become the control characters of the same number, so every byte comes back.
[[nodiscard]] QString FromBytes(const std::string& bytes);
/// The way back. A character that the code page lacks becomes one "?".
[[nodiscard]] std::string ToBytes(const QString& text);

/// A file name, which is the file system's own bytes, read as UTF-8. A byte that is no part of
/// valid UTF-8 becomes a lone surrogate (U+DC80 to U+DCFF), so every name comes back.
[[nodiscard]] QString FromFileName(const std::string& name);
/// The way back.
[[nodiscard]] std::string ToFileName(const QString& text);

/// `name` as it can be shown beside others without doing harm: a character that controls, or that
/// turns the direction of what follows, becomes U+FFFD. There is no way back.
[[nodiscard]] QString Harmless(QString name);

/// A text whose owner says what its bytes are.
[[nodiscard]] QString FromContent(const std::string& bytes, TextBox::Content content);
/// The way back.
[[nodiscard]] std::string ToContent(const QString& text, TextBox::Content content);

/// What a box of one line takes of a text: its first line, without control characters.
[[nodiscard]] QString OneLine(const QString& clip);

/// The key as a form gets it (see screen/keys.h): a character of Windows-1252, or the control
/// character of back space, Enter, ESC and Ctrl with a letter. `kKeyCancelled` for every other key
/// (arrows, Tab, Delete, what is struck together with Alt), and for a character that the code page
/// lacks.
[[nodiscard]] int KeyCode(const QKeyEvent& event);

}  // namespace corvalis::desktop
